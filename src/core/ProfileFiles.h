// The INI files on disk, read once and answered from memory.
//
// Changes are gathered and written together, each file by one replacement of the whole, so that the file on disk is
// always a complete one. A change that another program made is noticed: it is read before anything is answered or
// written, and changes not yet written are made again on top of it. A write that fails is tried again later, and
// nothing that was set is forgotten meanwhile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/ProfileFile.h"
#include "platform/Files.h"
#include "platform/Loop.h"

namespace vantrel {

// When changes go to disk. `everyTurn`: by the end of the loop's turn. `whenGrown`: when they come to a noticeable
// share of the file, or after a second without a change; for a large file that grows row by row and can be had again.
enum class WritePace { everyTurn, whenGrown };

class ProfileFiles {
 public:
  static constexpr std::size_t longestRead = 254;  // characters; a value is cut there when it is read
  static constexpr int quietTime = 1000;           // milliseconds
  static constexpr int retryTime = 5000;           // milliseconds

  // Both must outlive this.
  ProfileFiles(Files& files, Loop& loop) : files_(files), loop_(loop) {}
  ProfileFiles(const ProfileFiles&) = delete;
  ProfileFiles& operator=(const ProfileFiles&) = delete;
  // Writes what is not yet written.
  ~ProfileFiles();

  // At most `longestRead` characters; empty when there is no such file, section or key.
  std::string ReadIniValue(const std::string& file, std::string_view section, std::string_view key);
  // Creates the file, the section and the key as needed.
  void WriteIniValue(const std::string& file, std::string_view section, std::string_view key, std::string_view value,
                     WritePace pace = WritePace::everyTurn);
  // Opens the file for appending, as it were, and writes one line.
  void appendLine(const std::string& file, std::string_view line);
  // Throws failure 75 when the file is there but could not be read: what it holds is not known then, and nothing that
  // depends on it may be written.
  void requireReadable(const std::string& file);
  // The content as it stands, changes not yet written included; valid until the next call.
  const ProfileFile& content(const std::string& file);

  // A draft is a new content of a file, built under a name of its own in memory while the file keeps the old one.
  // Returns that name, for use with the calls above. One draft a file: beginning anew empties it.
  std::string beginDraft(const std::string& file);
  void dropDraft(const std::string& file);
  // True between the beginning of a draft and its end.
  bool isDrafted(const std::string& file) const;
  // Makes the draft the content of the file, on disk at once or, where that fails, by the next try.
  // A file that could not be read keeps its content under another name. REQUIRES: beginDraft.
  void commitDraft(const std::string& file);

  // True when the file is on disk or about to be.
  bool exists(const std::string& file);

  // Says that the program has taken in all that the file holds at present.
  void noteLoaded(const std::string& file);
  // True when the file holds nothing but what the program has loaded or committed.
  bool isLoaded(const std::string& file);

  // Has the file's present content kept beside it, as ".bak", or ".bak2" to ".bak9" where that is taken, before the
  // file is written the next time: as long as the copy cannot be written, neither is the file.
  void keepCopy(const std::string& file);

  // Writes now what is not yet written. True when nothing is left to write.
  bool flush();

 private:
  struct Change {
    std::string section;  // empty for a line to append
    std::string key;
    std::string value;
  };
  struct Entry {
    ProfileFile content;
    std::optional<FileStamp> stamp;        // of the file that `content` was read from or written to
    std::optional<std::uint64_t> checked;  // tick count of the last look at the stamp
    bool read = false;
    bool loaded = false;  // see isLoaded
    bool draft = false;
    bool replaced = false;                                // the whole content is new, whatever stands on disk
    std::optional<std::string> copy;                      // bytes to be kept beside the file before it is written
    bool ownItems = false;                                // a user's item is among the changes
    bool failing = false;                                 // the last write failed
    std::vector<Change> changes;                          // not yet written
    std::unordered_map<std::string, std::size_t> places;  // section and key -> number in `changes`
    std::size_t changedBytes = 0;
    TimerId timer = 0;
    bool soon = false;             // the timer runs to the end of this turn, not to a quiet moment
    std::uint64_t lastChange = 0;  // tick count
  };

  Entry& entry(const std::string& file);
  void read(const std::string& file, Entry& entry);
  void change(const std::string& file, Change change, WritePace pace);
  static void remember(Entry& entry, Change change);
  void schedule(const std::string& file, Entry& entry, int milliseconds);
  void writeWhenDue(const std::string& file);
  bool write(const std::string& file, Entry& entry);
  std::string freeCopyName(const std::string& file) const;
  static void apply(ProfileFile& content, const Change& change);

  Files& files_;
  Loop& loop_;
  std::map<std::string, Entry> entries_;
};

}  // namespace vantrel

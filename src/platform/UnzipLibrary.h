// Face of the library that unpacks zip archives.
//
// Whatever an archive says, nothing is written outside the target folder, nothing that is not whole stays in it, and
// no member takes more room than the archive said it would: a member is written beside its place, under a name of its
// own, and gets its name when its size and its CRC are right.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

// In the order of the record that the library reads.
struct UnzipOptions {
  bool extractOnlyNewer = false;        // than the file on the disk
  bool spaceToUnderscore = false;       // in names
  bool promptToOverwrite = false;       // asks `replace`
  int messageLevel = 0;                 // how much `print` is told
  bool testZip = false;                 // reads all of it and writes nothing
  bool list = false;                    // tells `message` of every member and writes nothing
  bool useFolderNames = false;          // keeps the archive's folders; without it all members land in the target folder
  bool overwriteExisting = false;       // without it a file that is there stays, and the member is passed over
  bool convertCrToCrLf = false;         // at line ends of members that are text
  bool caseSensitiveFileNames = false;  // for the names of the two lists
  std::string zipFile;                  // path, in the system's own bytes
  std::string unzipFolder;              // likewise; must be there
};

struct UnzipMember {
  std::string name;        // without the folder
  std::string folder;      // as stored, without a slash at its end; empty for none
  std::uint32_t size = 0;  // unpacked, bytes; 4,294,967,295 for more
  int ratio = 0;           // of what packing saved, percent
  std::string method;      // "Stored", "Deflated" or the like
  std::int64_t date = 0;   // as stored, seconds since 1970 read as if it were UTC
  std::uint32_t crc = 0;
  std::uint8_t flags = 0;  // 64 when it is encrypted
};

enum class ReplaceAnswer { no, yes, all, none };  // the last two also for all that follow

// Each may run events. Called during `unzip`; those of which the caller wants nothing may be empty.
struct UnzipCallbacks {
  std::function<void(const std::string& text)> print;  // what the library says, in whole lines, "/" in names
  std::function<bool(const std::string& name, std::uint32_t size)> service;  // before each member; true stops the run
  std::function<ReplaceAnswer(const std::string& name)> replace;
  std::function<std::optional<std::string>(const std::string& archive, const std::string& member)> password;
  std::function<void(const UnzipMember&)> message;
};

struct UnzipResult {
  int code = 0;  // 0 when all went well
  std::string
      problem;  // otherwise: which member or file, and why, in one sentence for the user; path bytes as they are
};

struct UnzipVersion {
  int major = 0;
  int minor = 0;
  int revision = 0;
  std::string extra;  // what the library says of itself
};

inline constexpr std::size_t maximumUnzipNames = 1023;

class UnzipLibrary {
 public:
  virtual ~UnzipLibrary() = default;

  // Lists, tests or unpacks an archive, and lets events run while it works, so that nothing stands still for long; the
  // program's end stops it. `include`: the members, by their whole stored names; empty for all. `exclude`: those of
  // them to leave out. REQUIRES: neither has more than `maximumUnzipNames`. Members that were unpacked before one
  // failed stay; of that one nothing does.
  virtual UnzipResult unzip(const std::vector<std::string>& include, const std::vector<std::string>& exclude,
                            const UnzipOptions& options, const UnzipCallbacks& callbacks) = 0;

  virtual UnzipVersion version() const = 0;
};

}  // namespace vantrel

// One zip archive: its list of members, and the unpacking of all of them or of those that are selected.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Signal.h"
#include "platform/UnzipLibrary.h"

namespace vantrel {

class cUnzip {
 public:
  // `library` must outlive this.
  explicit cUnzip(UnzipLibrary& library) : library_(library) {}

  bool ExtractOnlyNewer = false;        // than the file on the disk
  bool SpaceToUnderScore = false;       // in names
  bool PromptToOverwrite = false;       // asks through `OverwritePrompt`
  std::int32_t MessageLevel = 0;        // how much the library says
  bool TestZip = false;                 // writes nothing
  bool UseFolderNames = false;          // keeps the archive's folders
  bool OverwriteExisting = false;       // without it a file that is there stays
  bool ConvertCRToCRLF = false;         // at line ends of members that are text
  bool CaseSensitiveFileNames = false;  // for the names of selected members
  std::string UnzipFolder;              // path, in the system's own bytes

  const std::string& ZipFile() const { return zipFile_; }
  // Path, in the system's own bytes. Empties the list of members.
  void setZipFile(const std::string& path);

  // Fills the list of members; the library's code, 0 when all went well.
  std::int32_t Directory();
  // True when something went wrong; false when all went well, and when there is no `ZipFile`. Events run meanwhile.
  bool Unzip();
  // What went wrong in the last of the two above, in one sentence for the user; empty when nothing did.
  const std::string& problem() const { return problem_; }
  UnzipVersion GetVersion() const { return library_.version(); }

  // The list's rows, from 1. Each throws failure 9 when there is no such row.
  std::int32_t FileCount() const { return static_cast<std::int32_t>(rows_.size()); }
  const std::string& Filename(std::int32_t i) const { return row(i).member.name; }
  const std::string& FileDirectory(std::int32_t i) const { return row(i).member.folder; }
  std::uint32_t FileSize(std::int32_t i) const { return row(i).member.size; }              // bytes
  std::int32_t FileCompressionRatio(std::int32_t i) const { return row(i).member.ratio; }  // percent
  std::uint32_t FilePackedSize(std::int32_t i) const;                                      // bytes, about
  const std::string& FileCompressionMethod(std::int32_t i) const { return row(i).member.method; }
  std::int64_t FileDate(std::int32_t i) const { return row(i).member.date; }  // seconds since 1970
  std::uint32_t FileCRC(std::int32_t i) const { return row(i).member.crc; }
  bool FileEncrypted(std::int32_t i) const { return (row(i).member.flags & encryptedFlag) != 0; }
  bool FileSelected(std::int32_t i) const { return row(i).selected; }  // takes part in the next `Unzip`
  void setFileSelected(std::int32_t i, bool selected) { rows_[place(i)].selected = selected; }

  Signal<const std::string&, bool&> Cancel;  // before each member; true stops
  Signal<const std::string&, ReplaceAnswer&> OverwritePrompt;
  Signal<std::string&, bool&> PasswordRequest;  // the password, and true when there is none
  Signal<std::int32_t, const std::string&> Progress;

 private:
  static constexpr std::uint8_t encryptedFlag = 64;  // bit 6

  struct Row {
    UnzipMember member;
    bool selected = true;
  };

  std::size_t place(std::int32_t i) const;
  const Row& row(std::int32_t i) const { return rows_[place(i)]; }
  std::int32_t run(const std::vector<std::string>& include, bool list);
  UnzipCallbacks callbacks();
  std::vector<std::string> selectedNames() const;

  UnzipLibrary& library_;
  std::string zipFile_;
  std::string problem_;
  std::vector<Row> rows_;
};

}  // namespace vantrel

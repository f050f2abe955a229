// Face of the file system, as far as small files go. Paths are the system's own bytes with its own separator; contents
// are bytes. All calls finish before they return.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

#ifdef _WIN32
inline constexpr char pathSeparator = '\\';
#else
inline constexpr char pathSeparator = '/';
#endif

// Tells one state of a file from another; two equal stamps mean that nothing was changed in between.
struct FileStamp {
  std::uint64_t size = 0;      // bytes
  std::int64_t modified = 0;   // nanoseconds
  std::uint64_t identity = 0;  // of the file behind the name

  bool operator==(const FileStamp& other) const = default;
};

struct FolderEntry {
  std::string name;
  bool canRun = false;  // the user may start it as a program, by itself or through Wine
};

class Files {
 public:
  virtual ~Files() = default;

  // The whole content. Throws failure 53 when there is no such file, 75 when it cannot be read.
  virtual std::string read(const std::string& path) const = 0;

  // Makes `bytes` the content of the file, which need not exist, in one step that neither a crash nor a power cut can
  // halve: afterwards the file holds the old content or the new. Throws failure 61 when the disk is full, 75 or 76 when
  // the file or its folder cannot be written; the old content is then untouched.
  virtual void replace(const std::string& path, const std::string& bytes) = 0;

  // Throws failure 53 when there is no such file, 75 when it cannot be removed.
  virtual void remove(const std::string& path) = 0;

  // Gives the file a new name in the same folder, over a file that has it already. Throws failure 53 or 75; both files
  // are then as they were.
  virtual void rename(const std::string& from, const std::string& to) = 0;

  // Nothing when there is no file of that path, or it is a folder.
  virtual std::optional<FileStamp> stamp(const std::string& path) const = 0;

  // The path of the file or folder under its real name: as given when it exists so, else the first whose names differ
  // in capitals only. Nothing when there is none.
  virtual std::optional<std::string> find(const std::string& path) const = 0;

  // The files of a folder, those behind links included and folders not, in the order of their names without regard to
  // capitals. Throws failure 76 when there is no such folder, 75 when it cannot be read.
  virtual std::vector<FolderEntry> list(const std::string& folder) const = 0;
};

}  // namespace vantrel

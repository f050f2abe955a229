// Face of the files that are too large to be held: written piece by piece, straight to the disk. Paths are the
// system's own bytes with its own separator.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vantrel {

class BinaryFile {
 public:
  // Closes the file; what cannot be written then is lost without a word.
  virtual ~BinaryFile() = default;

  // Writes at the place behind what was written last. Small pieces may be gathered. Throws failure 61 when the disk is
  // full, 75 when it cannot be written; whatever came before is in the file.
  virtual void write(std::string_view bytes) = 0;

  // Writes what was gathered and closes the file; a second call does nothing. Throws as `write`; the file is then
  // closed all the same.
  virtual void close() = 0;
};

class BinaryFiles {
 public:
  virtual ~BinaryFiles() = default;

  // Opens a file for writing from `position` (0 to its length) on; it is made when there is none, and what it holds
  // stays where it is not written over. Throws failure 76 when its folder is missing, 75 when it cannot be opened.
  virtual std::unique_ptr<BinaryFile> openForBinary(const std::string& path, std::uint64_t position) = 0;

  // Makes a folder with all its missing parents; true when it is there afterwards.
  virtual bool makeSureDirectoryPathExists(const std::string& folder) = 0;
};

}  // namespace vantrel

// What a member's name becomes on this disk. A name comes from whoever packed the archive: it may lead out of the
// folder, stand for a device, or be one that the game's own system could not read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

enum class ZipFolders { drop, keep };

struct ZipPlace {
  std::vector<std::string> parts;  // the folders, then the file; without folders the file alone
  bool isFolder = false;           // then all parts are folders; none when folders are dropped
  std::string refusal;             // why it cannot be placed, as half a sentence; empty when it can
};

// Both kinds of slashes part the name. With `drop`, whatever stands before the last one is no part of the place and may
// be anything; with `keep`, a name that begins at the root or at a drive or leads upwards is refused.
ZipPlace placeOfMember(std::string_view storedName, ZipFolders folders);

// The same for two names that differ in capitals only.
std::string foldedName(std::string_view name);

// A name that may be shown: on one line, and not too long for it.
std::string shownName(std::string_view name);

// The name of a file that is not whole yet: `six` letters or digits make it one of its own.
std::string partName(std::string_view six);
bool isPartName(std::string_view name);

}  // namespace vantrel

#include "desktop/adapters/ZipNames.h"

#include <QString>
#include <algorithm>
#include <array>

namespace vantrel {
namespace {

constexpr std::size_t longestName = 255;  // bytes, of any file system that counts
constexpr std::size_t longestShown = 100;
constexpr std::size_t deepestFolder = 32;
constexpr std::string_view partBegin = ".vantrel-";
constexpr std::string_view partEnd = ".part";
constexpr std::size_t partLetters = 6;

bool isControl(char c) {
  return static_cast<unsigned char>(c) < 32 || c == 127;
}

bool isLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// Windows opens the device also when something stands behind a dot or blanks.
bool isDevice(std::string_view name) {
  std::string stem(name.substr(0, name.find('.')));
  stem.erase(stem.find_last_not_of(' ') + 1);
  stem = foldedName(stem);
  static constexpr std::array<std::string_view, 6> devices = {"con", "prn", "aux", "nul", "conin$", "conout$"};
  const bool isPort = (stem.starts_with("com") || stem.starts_with("lpt")) &&
                      ((stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9') || stem.ends_with("\u00b9") ||
                       stem.ends_with("\u00b2") || stem.ends_with("\u00b3"));
  return isPort || std::find(devices.begin(), devices.end(), stem) != devices.end();
}

std::string refusalOf(std::string_view part) {
  if (part.empty()) {
    return "it has no name";
  }
  if (part == "." || part == "..") {
    return "its name stands for a folder";
  }
  if (std::any_of(part.begin(), part.end(), isControl)) {
    return "its name has control characters";
  }
  if (part.find_first_of("<>:\"|?*") != std::string_view::npos || part.back() == '.' || part.back() == ' ') {
    return "its name is none that Windows allows";
  }
  if (part.size() > longestName) {
    return "its name is too long";
  }
  if (isDevice(part)) {
    return "its name is a device of Windows";
  }
  return isPartName(part) ? "its name is that of an unfinished file" : "";
}

std::vector<std::string> partsOf(std::string_view name) {
  std::vector<std::string> parts(1);
  for (const char c : name) {
    if (c == '/' || c == '\\') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

bool hasDrive(std::string_view name) {
  return name.size() >= 2 && name[1] == ':' && isLetterOrDigit(name[0]);
}

ZipPlace inTheFolder(std::string_view name) {
  ZipPlace place;
  const std::string last = partsOf(hasDrive(name) ? name.substr(2) : name).back();
  if (!name.empty() && last.empty()) {
    place.isFolder = true;
    return place;
  }
  place.refusal = refusalOf(last);
  place.parts = {last};
  return place;
}

ZipPlace withItsFolders(std::string_view name) {
  ZipPlace place;
  std::vector<std::string> parts = partsOf(name);
  if (hasDrive(name) || (parts.size() > 1 && parts.front().empty())) {
    place.refusal = "its name begins outside the folder";
    return place;
  }
  place.isFolder = parts.size() > 1 && parts.back().empty();
  const std::string last = parts.back();
  parts.pop_back();
  std::erase_if(parts, [](const std::string& part) { return part.empty() || part == "."; });
  if (!place.isFolder) {
    parts.push_back(last);
  }
  for (const std::string& part : parts) {
    place.refusal = place.refusal.empty() ? refusalOf(part) : place.refusal;
  }
  if (parts.size() > deepestFolder) {
    place.refusal = "its folders are too deep";
  }
  place.parts = std::move(parts);
  return place;
}

}  // namespace

ZipPlace placeOfMember(std::string_view storedName, ZipFolders folders) {
  return folders == ZipFolders::drop ? inTheFolder(storedName) : withItsFolders(storedName);
}

std::string foldedName(std::string_view name) {
  const bool isPlain =
      std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 128; });
  if (!isPlain) {
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())).toCaseFolded().toStdString();
  }
  std::string folded(name);
  std::transform(folded.begin(), folded.end(), folded.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return folded;
}

std::string shownName(std::string_view name) {
  std::string shown(name.substr(0, longestShown));
  std::replace_if(shown.begin(), shown.end(), isControl, '?');
  return name.size() > longestShown ? shown + "..." : shown;
}

std::string partName(std::string_view six) {
  return std::string(partBegin).append(six).append(partEnd);
}

bool isPartName(std::string_view name) {
  if (name.size() != partBegin.size() + partLetters + partEnd.size() || !name.starts_with(partBegin) ||
      !name.ends_with(partEnd)) {
    return false;
  }
  const std::string_view six = name.substr(partBegin.size(), partLetters);
  return std::all_of(six.begin(), six.end(), isLetterOrDigit);
}

}  // namespace vantrel

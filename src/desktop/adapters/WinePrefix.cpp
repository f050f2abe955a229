#include "desktop/adapters/WinePrefix.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include "core/Text.h"
#include "core/WineRegistryFile.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::size_t longestValue = 2048;  // bytes
constexpr const char* software = "software\\";

bool isLetter(char character) {
  return std::isalpha(static_cast<unsigned char>(character)) != 0 && static_cast<unsigned char>(character) < 0x80;
}

bool isWindowsPath(const std::string& text) {
  return text.size() >= 3 && isLetter(text[0]) && text[1] == ':' && (text[2] == '\\' || text[2] == '/');
}

}  // namespace

std::optional<std::string> WinePrefix::read(RegistryRoot root, const std::string& path, const std::string& name) const {
  if (root == RegistryRoot::classesRoot) {
    return std::nullopt;
  }
  std::string bytes;
  try {
    bytes = files_.read(folder_ + (root == RegistryRoot::currentUser ? "/user.reg" : "/system.reg"));
  } catch (const Failure&) {
    return std::nullopt;
  }
  std::optional<std::string> value = wineRegistryValue(bytes, path, name);
  if (!value && lowerCase(path).starts_with(software)) {
    // Where a 32-bit program writes in a 64-bit prefix.
    const std::string rest = path.substr(std::string_view(software).size());
    value = wineRegistryValue(bytes, "Software\\Wow6432Node\\" + rest, name);
  }
  if (value && value->size() > longestValue) {
    value->resize(longestValue);
  }
  return value && isWindowsPath(*value) ? localPath(*value) : value;
}

void WinePrefix::write(RegistryRoot /*root*/, const std::string& /*path*/, const std::string& /*name*/,
                       RegistryType /*type*/, const std::string& /*value*/) {
  throw failures::fileAccess();
}

std::optional<std::string> WinePrefix::localPath(const std::string& windowsPath) const {
  const std::optional<std::string> top = drive(windowsPath[0]);
  if (!top) {
    return std::nullopt;
  }
  std::string tail = windowsPath.substr(2);
  std::replace(tail.begin(), tail.end(), '\\', '/');
  std::vector<std::string> parts;
  for (const std::string& part : split(tail, '/')) {
    if (part != "..") {
      parts.push_back(part);
    } else if (parts.empty()) {
      return std::nullopt;
    } else {
      parts.pop_back();
    }
    if (!parts.empty() && (parts.back().empty() || parts.back() == ".")) {
      parts.pop_back();
    }
  }
  std::string path = *top;
  for (const std::string& part : parts) {
    path += "/" + part;
  }
  return path.empty() ? "/" : files_.find(path).value_or(path);
}

std::optional<std::string> WinePrefix::drive(char letter) const {
  const std::string name(1, lowerCase(letter));
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::canonical(folder_ + "/dosdevices/" + name + ":", error);
  if (!error) {
    return folder == folder.root_path() ? std::string() : folder.string();
  }
  return name == "c" ? std::optional(folder_ + "/drive_c") : std::nullopt;
}

std::string findWinePrefix() {
  const char* const prefix = std::getenv("WINEPREFIX");
  if (prefix != nullptr && *prefix != '\0') {
    return prefix;
  }
  const char* const home = std::getenv("HOME");
  return std::string(home == nullptr ? "" : home) + "/.wine";
}

}  // namespace vantrel

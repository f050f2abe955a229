#include "desktop/adapters/SettingsRegistry.h"

#include <algorithm>

#include "core/Text.h"
#include "desktop/adapters/PrivateFolder.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::size_t longestValue = 2048;  // bytes

// The program's own keys are its own affair: another copy's, in a Wine prefix, are none of its business.
constexpr const char* programsOwn = "software\\marrowind\\";

const char* nameOf(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::classesRoot:
      return "HKEY_CLASSES_ROOT";
    case RegistryRoot::currentUser:
      return "HKEY_CURRENT_USER";
    case RegistryRoot::localMachine:
      break;
  }
  return "HKEY_LOCAL_MACHINE";
}

std::string sectionOf(RegistryRoot root, const std::string& path) {
  return std::string(nameOf(root)) + "\\" + path;
}

std::string keyOf(const std::string& name) {
  return name.empty() ? "@" : name;
}

// What would end the line of a section or key, be trimmed off it or make another line of it has no place in a name.
bool fitsIntoALine(const std::string& section, const std::string& key) {
  const auto isControl = [](char character) { return static_cast<unsigned char>(character) < ' '; };
  const bool edges =
      section.back() != ' ' && key.front() != ' ' && key.back() != ' ' && key.front() != '[' && key.front() != ';';
  return edges && key.find('=') == std::string::npos && section.find(']') == std::string::npos &&
         std::none_of(section.begin(), section.end(), isControl) && std::none_of(key.begin(), key.end(), isControl);
}

}  // namespace

SettingsRegistry::SettingsRegistry(Files& files, Loop& loop, const std::string& folder, const Registry* further)
    : folder_(folder), file_(folder + pathSeparator + "registry.ini"), profiles_(files, loop), further_(further) {}

std::optional<std::string> SettingsRegistry::read(RegistryRoot root, const std::string& path,
                                                  const std::string& name) const {
  const std::optional<std::string> own = readOwn(root, path, name);
  const bool elsewhere = further_ != nullptr && !lowerCase(path).starts_with(programsOwn);
  return own || !elsewhere ? own : further_->read(root, path, name);
}

std::optional<std::string> SettingsRegistry::readOwn(RegistryRoot root, const std::string& path,
                                                     const std::string& name) const {
  const std::string section = sectionOf(root, path);
  const std::string key = keyOf(name);
  if (!fitsIntoALine(section, key)) {
    return std::nullopt;
  }
  std::optional<std::string> value = profiles_.content(file_).value(section, key);
  if (value && value->size() > longestValue) {
    value->resize(longestValue);
  }
  return value;
}

void SettingsRegistry::write(RegistryRoot root, const std::string& path, const std::string& name, RegistryType /*type*/,
                             const std::string& value) {
  const std::string section = sectionOf(root, path);
  const std::string key = keyOf(name);
  if (!fitsIntoALine(section, key)) {
    throw failures::fileAccess();
  }
  profiles_.requireReadable(file_);
  makePrivateFolder(folder_);
  profiles_.WriteIniValue(file_, section, key, value);
  if (!profiles_.flush()) {
    throw failures::fileAccess();
  }
}

}  // namespace vantrel

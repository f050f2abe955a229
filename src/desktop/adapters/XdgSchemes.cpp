#include "desktop/adapters/XdgSchemes.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr const char* entryName = "vantrel-ce-links.desktop";
constexpr const char* section = "[Default Applications]";

std::string mimeType(const std::string& scheme) {
  return "x-scheme-handler/" + scheme;
}

std::string valueOf(const std::string& list, const std::string& key) {
  bool isInSection = false;
  for (const std::string& line : split(list, '\n')) {
    const std::string_view text = trimBlanks(line);
    if (text.starts_with('[')) {
      isInSection = text == section;
    } else if (isInSection && text.starts_with(key + "=")) {
      return std::string(text.substr(key.size() + 1));
    }
  }
  return {};
}

void makeFolderOf(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
}

}  // namespace

// Quotes stand only where they must: the plain `xdg-open` of a desktop without a name takes them for a part of the
// path.
std::string quotedForEntry(const std::string& path) {
  const std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/._-+@:,";
  if (path.find_first_not_of(plain) == std::string::npos) {
    return path;
  }
  std::string quoted = "\"";
  for (const char c : path) {
    if (c == '%') {
      quoted += '%';  // A single one would stand for an argument.
    } else if (c == '\\') {
      quoted += "\\\\\\";  // Once for the word, and both once more for the value of a key.
    } else if (c == '"' || c == '`' || c == '$') {
      quoted += "\\\\";
    }
    quoted += c;
  }
  return quoted + "\"";
}

std::string withDefault(const std::string& list, const std::string& key, const std::string& value) {
  std::string changed;
  bool isInSection = false;
  bool isSet = value.empty();
  const std::string wanted = key + "=" + value + "\n";
  std::vector<std::string> lines = split(list, '\n');
  if (lines.back().empty()) {
    lines.pop_back();
  }
  for (const std::string& line : lines) {
    const std::string_view text = trimBlanks(line);
    if (isInSection && text.starts_with(key + "=")) {
      continue;
    }
    changed += line + "\n";
    if (text.starts_with('[')) {
      isInSection = text == section;
      if (isInSection && !isSet) {
        changed += wanted;
        isSet = true;
      }
    }
  }
  return isSet ? changed : changed + (changed.empty() ? "" : "\n") + section + "\n" + wanted;
}

std::string XdgSchemes::contentOf(const std::string& path) const {
  return files_.stamp(path) ? files_.read(path) : std::string();
}

std::string XdgSchemes::entry(const std::string& scheme) const {
  return "[Desktop Entry]\nType=Application\nVersion=1.0\nName=Vantrel CE\nComment=Opens links to game servers\nExec=" +
         quotedForEntry(folders_.program) +
         " %u\nIcon=vantrel-ce\nTerminal=false\nNoDisplay=true\nMimeType=" + mimeType(scheme) + ";\n";
}

bool XdgSchemes::isMine(const std::string& scheme) const {
  if (!hasHome()) {
    return true;  // There is no desktop that could be told.
  }
  try {
    const std::string first = split(valueOf(contentOf(listPath()), mimeType(scheme)), ';').front();
    return first == entryName && contentOf(entryPath()) == entry(scheme);
  } catch (const Failure&) {
    return false;
  }
}

void XdgSchemes::claim(const std::string& scheme) {
  if (hasHome()) {
    makeFolderOf(entryPath());
    makeFolderOf(listPath());
    const std::string list = contentOf(listPath());
    files_.replace(entryPath(), entry(scheme));
    files_.replace(listPath(), withDefault(list, mimeType(scheme), std::string(entryName) + ";"));
  }
}

void XdgSchemes::withdraw(const std::string& scheme) {
  if (!hasHome()) {
    return;
  }
  const std::string list = contentOf(listPath());
  if (split(valueOf(list, mimeType(scheme)), ';').front() == entryName) {
    files_.replace(listPath(), withDefault(list, mimeType(scheme), ""));
  }
  if (files_.stamp(entryPath())) {
    files_.remove(entryPath());
  }
}

}  // namespace vantrel

#include "desktop/adapters/XdgSchemes.h"

#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "core/FailureStyles.h"
#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr const char* entryName = "vantrel-ce-links.desktop";
constexpr const char* section = "[Default Applications]";

std::string mimeType(const std::string& scheme) {
  return "x-scheme-handler/" + scheme;
}

std::string_view trimLine(std::string_view line) {
  return trimBlanks(line.ends_with('\r') ? line.substr(0, line.size() - 1) : line);
}

// What stands behind "=" in a line of this key; nothing in any other line.
std::optional<std::string> valueIn(const std::string& line, const std::string& key) {
  const std::string_view text = trimLine(line);
  const std::size_t at = text.find('=');
  if (at == std::string_view::npos || trimBlanks(text.substr(0, at)) != key) {
    return std::nullopt;
  }
  return std::string(trimBlanks(text.substr(at + 1)));
}

std::string valueOf(const std::string& list, const std::string& key) {
  bool isInSection = false;
  std::string value;
  for (const std::string& line : split(list, '\n')) {
    const std::string_view text = trimLine(line);
    if (text.starts_with('[')) {
      isInSection = text == section;
    } else if (isInSection) {
      value = valueIn(line, key).value_or(value);
    }
  }
  return value;
}

// The entries of such a value, each with ";" behind it, without ours.
std::string othersIn(const std::string& value) {
  std::string others;
  for (const std::string& each : split(value, ';')) {
    const std::string_view name = trimBlanks(each);
    if (!name.empty() && name != entryName) {
      others += std::string(name) + ";";
    }
  }
  return others;
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
    const std::string_view text = trimLine(line);
    if (isInSection && valueIn(line, key)) {
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
  if (!hasHome()) {
    return;
  }
  makeFolderOf(entryPath());
  makeFolderOf(listPath());
  const std::string list = contentOf(listPath());
  const std::string key = mimeType(scheme);
  const bool hadEntry = files_.stamp(entryPath()).has_value();
  const std::string before = contentOf(entryPath());
  files_.replace(entryPath(), entry(scheme));
  try {
    files_.replace(listPath(), withDefault(list, key, std::string(entryName) + ";" + othersIn(valueOf(list, key))));
  } catch (const Failure&) {
    stopSilently([&] { hadEntry ? files_.replace(entryPath(), before) : files_.remove(entryPath()); });
    throw;
  }
}

void XdgSchemes::withdraw(const std::string& scheme) {
  if (!hasHome()) {
    return;
  }
  const std::string list = contentOf(listPath());
  const std::string value = valueOf(list, mimeType(scheme));
  if (value.find(entryName) != std::string::npos) {
    files_.replace(listPath(), withDefault(list, mimeType(scheme), othersIn(value)));
  }
  if (files_.stamp(entryPath())) {
    files_.remove(entryPath());
  }
}

}  // namespace vantrel

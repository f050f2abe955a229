#include "core/ProfileFile.h"

#include <algorithm>
#include <charconv>

#include "core/Text.h"

namespace vantrel {
namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string_view withoutLineEnd(std::string_view line) {
  if (line.ends_with('\n')) {
    line.remove_suffix(1);
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    }
  }
  return line;
}

std::optional<std::string> sectionName(std::string_view line) {
  line = trimBlanks(withoutLineEnd(line));
  if (!line.starts_with('[')) {
    return std::nullopt;
  }
  line.remove_prefix(1);
  return lowerCase(trimBlanks(line.substr(0, line.find(']'))));
}

struct KeyLine {
  std::string_view key;  // as it is spelled
  std::string_view value;
};

// A value written by this program is all that stands behind the "=", blanks included, since names and passwords may
// begin or end with blanks. A line laid out by hand as "key = value" has a blank before the "=" and means no such
// thing.
std::optional<KeyLine> keyLine(std::string_view line) {
  line = withoutLineEnd(line);
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || trimBlanks(line).starts_with(';')) {
    return std::nullopt;
  }
  const std::string_view before = line.substr(0, equals);
  std::string_view value = line.substr(equals + 1);
  if (before.ends_with(' ') || before.ends_with('\t')) {
    value = trimBlanks(value);
  }
  return KeyLine{trimBlanks(before), value};
}

std::string asOneLine(std::string_view value) {
  std::string line(value);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
  return line;
}

bool isEmptyLine(std::string_view line) {
  return trimBlanks(withoutLineEnd(line)).empty();
}

}  // namespace

ProfileFile::ProfileFile(std::string_view bytes) : sections_(1) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    const std::size_t length = end == std::string_view::npos ? bytes.size() : end + 1;
    readLine(bytes.substr(0, length));
    bytes.remove_prefix(length);
  }
}

void ProfileFile::readLine(std::string_view line) {
  size_ += line.size();
  if (const auto name = sectionName(line)) {
    sections_.emplace_back();
    doubled_ = !numbers_.try_emplace(*name, sections_.size() - 1).second || doubled_;
  } else if (const auto entry = keyLine(line)) {
    sections_.back().keys.try_emplace(lowerCase(entry->key), sections_.back().lines.size());
  }
  sections_.back().lines.emplace_back(line);
}

const ProfileFile::Section* ProfileFile::find(std::string_view section) const {
  const auto found = numbers_.find(lowerCase(section));
  return found == numbers_.end() ? nullptr : &sections_[found->second];
}

std::optional<std::string> ProfileFile::value(std::string_view section, std::string_view key) const {
  const Section* const held = find(section);
  if (held == nullptr) {
    return std::nullopt;
  }
  const auto found = held->keys.find(lowerCase(key));
  if (found == held->keys.end()) {
    return std::nullopt;
  }
  return std::string(keyLine(held->lines[found->second])->value);
}

bool ProfileFile::hasSectionBeyond(int number) const {
  return std::any_of(numbers_.begin(), numbers_.end(), [number](const auto& section) {
    const std::string& name = section.first;
    int value = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), value);
    return error == std::errc() && end == name.data() + name.size() && value > number;
  });
}

std::size_t ProfileFile::longestValue(std::string_view section) const {
  std::size_t longest = 0;
  if (const Section* const held = find(section)) {
    for (const auto& [name, number] : held->keys) {
      longest = std::max(longest, keyLine(held->lines[number])->value.size());
    }
  }
  return longest;
}

ProfileFile::Section& ProfileFile::require(std::string_view section) {
  const auto found = numbers_.find(lowerCase(section));
  if (found != numbers_.end()) {
    return sections_[found->second];
  }
  appendLine("[" + std::string(section) + "]");
  return sections_.back();
}

void ProfileFile::replaceLine(std::string& line, std::string text) {
  size_ += text.size() - line.size();
  line = std::move(text);
}

void ProfileFile::set(std::string_view section, std::string_view key, std::string_view value) {
  Section& held = require(section);
  const std::string text = asOneLine(value) + std::string(lineEnd);
  const auto found = held.keys.find(lowerCase(key));
  if (found != held.keys.end()) {
    std::string& line = held.lines[found->second];
    replaceLine(line, std::string(keyLine(line)->key) + "=" + text);
    return;
  }
  // Empty lines at the end of a section part it from the next one, so the key goes before them.
  std::size_t place = held.lines.size();
  while (place > 1 && isEmptyLine(held.lines[place - 1])) {
    --place;
  }
  std::string& before = held.lines[place - 1];
  if (!before.ends_with('\n')) {
    replaceLine(before, before + std::string(lineEnd));
  }
  std::string line = std::string(key) + "=" + text;
  size_ += line.size();
  held.lines.insert(held.lines.begin() + static_cast<std::ptrdiff_t>(place), std::move(line));
  held.keys.emplace(lowerCase(key), place);
}

void ProfileFile::endLastLine() {
  for (auto section = sections_.rbegin(); section != sections_.rend(); ++section) {
    if (!section->lines.empty()) {
      std::string& last = section->lines.back();
      if (!last.ends_with('\n')) {
        replaceLine(last, last + std::string(lineEnd));
      }
      return;
    }
  }
}

void ProfileFile::appendLine(std::string_view line) {
  endLastLine();
  readLine(asOneLine(line) + std::string(lineEnd));
}

std::string ProfileFile::bytes() const {
  std::string all;
  all.reserve(size_);
  for (const Section& section : sections_) {
    for (const std::string& line : section.lines) {
      all += line;
    }
  }
  return all;
}

}  // namespace vantrel

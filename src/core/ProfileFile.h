// The content of one INI file: sections of keys and values, in order, with every line that was not changed kept to the
// byte. docs/stores.md tells the format.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantrel {

class ProfileFile {
 public:
  // Any bytes make a content: what is no section and no key is kept as a line that is never read.
  explicit ProfileFile(std::string_view bytes = {});

  // The whole value; nothing when there is no such key. Sections and keys match without regard to case; of two with
  // the same name the first counts.
  std::optional<std::string> value(std::string_view section, std::string_view key) const;
  bool hasSection(std::string_view section) const { return find(section) != nullptr; }
  // True when there is a section named by a number above `number`.
  bool hasSectionBeyond(int number) const;
  // True when two sections have the same name, of which the second is never read.
  bool hasDoubledSection() const { return doubled_; }
  // Length of the longest value in a section, 0 when there is none.
  std::size_t longestValue(std::string_view section) const;

  // Changes a key where it stands, keeping its spelling; a new key goes behind the last line of its section, a new
  // section to the end of the file. Line breaks and NULs in the value become blanks, as a value is one line.
  void set(std::string_view section, std::string_view key, std::string_view value);

  // Puts a line at the end of the file, with CR LF behind it.
  void appendLine(std::string_view line);

  std::string bytes() const;
  std::size_t size() const { return size_; }  // of `bytes()`

 private:
  struct Section {
    std::vector<std::string> lines;                     // with their line ends; the first is the "[name]" line
    std::unordered_map<std::string, std::size_t> keys;  // lower-case name -> number of its line
  };

  const Section* find(std::string_view section) const;
  Section& require(std::string_view section);
  void readLine(std::string_view line);
  void replaceLine(std::string& line, std::string text);
  void endLastLine();

  std::vector<Section> sections_;                         // the first holds the lines before any section
  std::unordered_map<std::string, std::size_t> numbers_;  // lower-case section name -> number in `sections_`
  std::size_t size_ = 0;
  bool doubled_ = false;
};

}  // namespace vantrel

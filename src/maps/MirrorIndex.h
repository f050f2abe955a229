// The words of a mirror's index page that name maps. The page comes as plain text, and its words are parted by blanks.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

// True when a word is the zip file of this map, capitals included. Words on both sides of a line end are one word.
bool indexHasMap(const std::string& plainText, const std::string& someMap);

// The names of all words that name zip files, in their order and with all doubles. The first word never counts, and two
// names that touch across a line end are one.
std::vector<std::string> indexMaps(const std::string& plainText);

}  // namespace vantrel

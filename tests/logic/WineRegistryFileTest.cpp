#include "core/WineRegistryFile.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr const char* game = "SOFTWARE\\Microsoft\\Microsoft Games\\Halo";

// The first value of the game's key, from a file that holds little else.
std::string valueFrom(const std::string& line, const std::string& name = "EXE Path") {
  return wineRegistryValue(
             "WINE REGISTRY Version 2\n;; All keys relative to \\\\Machine\n\n"
             "[Software\\\\Microsoft\\\\Microsoft Games\\\\Halo] 1469000000 123\n#time=1d1e4\n" +
                 line,
             game, name)
      .value_or("nothing");
}

TEST(WineRegistryFile, a_value_is_text_with_its_escapes_resolved) {
  const std::pair<std::string, std::string> lines[] = {
      {"\"EXE Path\"=\"C:\\\\Program Files (x86)\\\\Halo\"\n", "C:\\Program Files (x86)\\Halo"},
      {"\"exe path\"=\"any capitals\"\r\n", "any capitals"},
      {R"("EXE Path"=str(2):"%ProgramFiles%")", "%ProgramFiles%"},
      {R"("EXE Path"="a \"b\" [c]\n;=")", "a \"b\" [c]\n;="},
      {R"("EXE Path"="\xe9\x00e9 \x20acg\x4")", "\xC3\xA9\xC3\xA9 \xE2\x82\xACg\x04"},
      {R"("EXE Path"="\xd83d\xde00 \xd83d \xde00")", "\xF0\x9F\x98\x80 \xEF\xBF\xBD \xEF\xBF\xBD"},
      {"\"EXE Path\"=\"J\xC3\xBCrg\"", "J\xC3\xBCrg"},
      {R"("EXE Path"="cut\0off")", "cut"},
      {R"("EXE Path"="")", ""},
      {R"("EXE Path"="no end)", "nothing"},
      {R"("EXE Path"="no end\)", "nothing"},
      {R"("EXE Path"=dword:00000001)", "nothing"},
      {"\"EXE Path\"=hex:22,\\\n  22,00\n\"EXE Path2\"=\"x\"", "nothing"},
      {"\"Other\"=hex:22,\\\n  22,00\n\"EXE Path\"=\"behind\"", "behind"},
      {"@=\"default\"", "nothing"}};
  for (const auto& [line, value] : lines) {
    EXPECT_EQ(valueFrom(line), value) << line;
  }
  EXPECT_EQ(valueFrom("\"\"=\"unnamed\"\n@=\"default\"", ""), "default");
}

TEST(WineRegistryFile, a_key_is_its_whole_path_in_any_capitals) {
  const char* const file = R"([Software\\Halo\\More]
"Name"="longer"
[Software\\Hal]
"Name"="shorter"
[Software\\Halo
"Name"="not closed"
[SOFTWARE\\hAlO] 1469000000
"Name"="right"
[J\xfcrg \[x\]]
"Name"="named oddly")";
  EXPECT_EQ(wineRegistryValue(file, "Software\\HALO", "Name"), "right");
  EXPECT_EQ(wineRegistryValue(file, "J\xC3\xBCrg [x]", "name"), "named oddly");
  EXPECT_EQ(wineRegistryValue(file, "", "Name"), std::nullopt);
  EXPECT_EQ(wineRegistryValue("", "", ""), std::nullopt);
}

}  // namespace
}  // namespace vantrel

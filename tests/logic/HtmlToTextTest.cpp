// Pages as plain text, and the maps that an index names.

#include <gtest/gtest.h>

#include "export/Entities.h"
#include "maps/MirrorIndex.h"
#include "support/World.h"

namespace vantrel {
namespace {

struct HtmlToTextTest : testing::Test, World {
  std::string textOf(const std::string& page) { return reduction.HtmlToText(page, ""); }
  std::string body(const std::string& inside) { return textOf("<body>" + inside + ".  "); }
};

TEST_F(HtmlToTextTest, pages_become_text) {
  const std::pair<const char*, const char*> cases[] = {
      {"<html><head><title>Maps</title></head><body>a.zip b.zip", "Maps\r\n\r\na.zip b.zip"},
      {"nothing counts <b>here</b> yet", ""},
      {"in front<body>behind", "behind"},
      {"", ""},
      {"<", ""},
      {"<body>a \t\r\n  b", "a b"},
      {"<body>a<b>b</b>c", "ab"},
      {"<body>one<!-- two -- > three", "onethree"},
      {"<body>one<!-- two", "one"},
      {"<body>one<script>two &amp; - </script>three", "onethree"},
      {"<body>one<script>if (a < b) two</script>three", "one"},
      {"<body>- - a - b", " a - b"},
      {"<body>x<p>y<p><p>z.", "x\r\n\r\ny\r\n\r\nz."},
      {"<body>x<br><br>y<br clear=all>z.", "x\r\nyz."},
      {"<body>x<ul><li>a<li>b</ul>y.", "x\r\n\r\n\r\n\x95 a\r\n\x95 b\r\n\r\ny."},
      {"<body>x<ol><li>a<li>b</ol><ol><li>c</ol>..", "x\r\n\r\n\r\n1. a\r\n2. b\r\n\r\n\r\n\r\n\r\n1. c\r\n\r\n.."},
      {"<body>x<option>a<OPTION value=1>b.", "x\r\n\ta\r\n\tb."},
      {"<body>x<br>", "x"},
      {"<body>x<br>y", "x"},
      {"<body>x<br>yz", "x\r\nyz"},
      {"<body>AT&T rocks", "AT&T rocks"},
      {"<body>a&b;c", "ac"},
      {"<body>a&amp;b&nbsp;c&quot;d",
       "a&b\xA0"
       "cd"},
      {"<body>a &amp;   b", "a & b"},
      {"<body>a&&lt;b", "a&<b"},
      {"<body>x<td>y<th>z.", "x\r\ny\r\nz."},
      {"<body><table><tr><td>a<td>b</table>.", ""},
  };
  for (const auto& [page, text] : cases) {
    EXPECT_EQ(textOf(page), text) << page;
  }
}

TEST_F(HtmlToTextTest, a_row_is_one_line_as_long_as_its_cells_are_short) {
  const auto row = [this](const std::string& cells) { return body("x<tr>" + cells + "</tr>"); };
  const std::string cell(32, 'a');
  EXPECT_EQ(row("<td>" + cell + "</td><td>" + cell + "</td>"), "x\r\n" + cell + "   " + cell + ". ");
  EXPECT_EQ(row("<td>" + cell + "</td><td>" + cell + "b</td>"), "x\r\n\r\n" + cell + "\r\n" + cell + "b. ");
  EXPECT_EQ(row("<td>a<br>b</td><td>c</td>"), "x\r\n\r\na\r\nb\r\nc. ");
  EXPECT_EQ(row("<td>a</td><td><table></table>c</td>"), "x\r\n\r\na\r\nc. ")
      << "the table's own line end is there already";
  EXPECT_EQ(row("<TH>a</ td><th>b</td>"), "x\r\na   b. ");
}

TEST_F(HtmlToTextTest, only_white_space_ends_a_line_that_is_full) {
  const std::string word(74, 'w');
  EXPECT_EQ(body(word + " v"), word + " \r\nv. ");
  EXPECT_EQ(body(word + word + " v"), word + word + " \r\nv. ");
  EXPECT_EQ(body(std::string(73, 'w') + " v"), std::string(73, 'w') + " v. \r\n");
}

// Each row is measured by looking ahead.
TEST_F(HtmlToTextTest, rows_without_an_end_cost_no_more_than_their_characters) {
  std::string page = "<body>x";
  for (int i = 0; i < 40000; ++i) {
    page += "<tr><td>";
  }
  EXPECT_EQ(textOf(page), "x");
  page += "</td></tr>..";
  EXPECT_EQ(textOf(page).size(), 1 + 40000 * 2 + 2);
}

TEST_F(HtmlToTextTest, the_text_goes_to_a_file_where_one_is_named) {
  EXPECT_EQ(reduction.HtmlToText("<body>ab", "/app/a.txt"), "ab");
  EXPECT_EQ(onDisk("a.txt"), "ab\r\n");
  EXPECT_EQ(reduction.HtmlToText("<body>ab", "/nowhere/a.txt"), "ab");
}

TEST(Entities, names_and_numbers_become_their_characters) {
  const std::pair<const char*, const char*> cases[] = {
      {"amp", "&"},       {"LT", "<"},        {"quot", ""},       {"bogus", ""},      {"#65", "A"},
      {"65", "A"},        {"#x41", ""},       {"#256", ""},       {"#-1", ""},        {"nbsp", "\xA0"},
      {"NBSP", "\xA0"},   {"iquest", "\xBF"}, {"eacute", "\xE9"}, {"Eacute", "\xC9"}, {"EACUTE", "\xC9"},
      {"divide", "\xF7"}, {"Divide", "\xF7"}, {"times", "\xD7"},  {"szlig", "\xDF"},  {"yuml", "\xFF"},
      {"Yuml", "\xFF"},   {"thorn", "\xFE"},  {"THORN", "\xDE"},  {"#149", "\x95"},   {"", ""},
      {"#", ""},
  };
  for (const auto& [name, text] : cases) {
    EXPECT_EQ(decodeEntity(name), text) << name;
  }
}

TEST(MirrorIndex, words_that_name_zip_files_are_maps) {
  EXPECT_TRUE(indexHasMap("Index a.zip\r\n b.zip ", "a"));
  EXPECT_TRUE(indexHasMap("a.zip", "a"));
  EXPECT_TRUE(indexHasMap("x lan\r\nd.zip", "land"));
  EXPECT_FALSE(indexHasMap("x A.zip a.ZIP aa.zip a.zip\r\nb a.zipx", "a"));
  EXPECT_FALSE(indexHasMap("", "a"));
  const std::vector<std::string> maps =
      indexMaps("first.zip a.zip  B.zip\r\n 10M c.zip\r\nd.zip e.ZIP x.zip.zip a.zip");
  EXPECT_EQ(maps, (std::vector<std::string>{"a", "B", "cd", "x", "a"}));
}

}  // namespace
}  // namespace vantrel

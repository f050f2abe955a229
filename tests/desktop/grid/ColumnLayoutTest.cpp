#include "desktop/grid/ColumnLayout.h"

#include <gtest/gtest.h>

#include <string>

namespace vantrel {
namespace {

ColumnLayout fresh() {
  return ColumnLayout({{"cName", 165}, {"cPing", 50}, {"cIP", 5}});
}

TEST(ColumnLayout, keeps_what_a_text_tells_of_its_columns_and_nothing_else) {
  const std::string standing = "cName:165 cPing:50 cIP:24";
  const std::string endless(1 << 20, '9');
  const std::pair<std::string, std::string> cases[] = {
      {"", standing},
      {"cIP:70 -cName:200 cPing:51", "cIP:70 -cName:200 cPing:51"},
      {"\t cIP:70\r\n", "cName:165 cPing:50 cIP:70"},
      {"cIP:70 cPing:60", "cName:165 cIP:70 cPing:60"},
      {"cMap:90 cPing:60 cping:70 :80 -:80", "cName:165 cPing:60 cIP:24"},
      {"cPing:60 -cPing:70 cName:80 cName:90", "cPing:60 cName:80 cIP:24"},
      {"cName:1 cPing:2001 cIP:-7", "cName:24 cPing:2000 cIP:24"},
      {"cName:" + endless + " cPing:-" + endless, "cName:2000 cPing:24 cIP:24"},
      {"cName cPing: -cIP:7x", "cName:165 cPing:50 -cIP:24"},
      {"-cPing:60 -cName:70 -cIP:80", "cPing:60 cName:70 cIP:80"},
      {"- -- : --cName:50 \x01\xFF " + endless, standing},
      {std::string("cName:9\0 cPing:60", 17), "cName:165 cPing:60 cIP:24"},
  };
  for (const auto& [text, expected] : cases) {
    ColumnLayout layout = fresh();
    layout.setOrder({3, 2, 1});
    layout.read(text);
    EXPECT_EQ(layout.text(), expected) << text.substr(0, 80);
    ColumnLayout again = fresh();
    again.read(layout.text());
    EXPECT_EQ(again, layout) << "what was written is read back";
  }
}

TEST(ColumnLayout, the_last_column_that_is_shown_stays) {
  ColumnLayout layout = fresh();
  layout.toggle(3);
  EXPECT_EQ(layout.rightmost(), 2);
  layout.toggle(1);
  layout.toggle(2);
  EXPECT_EQ(layout.text(), "-cName:165 cPing:50 -cIP:24");
  layout.toggle(9);
  layout.toggle(1);
  layout.toggle(2);
  EXPECT_EQ(layout.text(), "cName:165 -cPing:50 -cIP:24");
}

}  // namespace
}  // namespace vantrel

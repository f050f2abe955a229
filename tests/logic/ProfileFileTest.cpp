#include "core/ProfileFile.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(ProfileFile, a_value_is_found_by_these_rules) {
  struct Case {
    const char* bytes;
    const char* value;  // of key `k` in section `s`
  };
  const Case cases[] = {
      {"[s]\r\nk=v\r\n", "v"},
      {"[s]\nk=v", "v"},
      {"[S]\r\nK=Value\r\n", "Value"},
      {"[s]\r\nk= two words \r\n", " two words "},
      {"[s]\r\n k =  v  \r\n", "v"},
      {"[s]\r\nk=a=b[c];d\r\n", "a=b[c];d"},
      {"[s]\r\nk=first\r\nk=second\r\n", "first"},
      {"[s]\r\nk=first\r\n[t]\r\n[s]\r\nk=second\r\n", "first"},
      {"[t]\r\nk=other\r\n[s]\r\n", "(none)"},
      {"k=before any section\r\n[s]\r\n", "(none)"},
      {"[s]\r\n;k=comment\r\nk\r\ngarbage\x01\xFF\r\n\r\nk=v\r\n", "v"},
      {" [ s ] trailing\r\nk=v\r\n", "v"},
      {"[s\r\nk=v\r\n", "v"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(ProfileFile(each.bytes).value("s", "k").value_or("(none)"), each.value) << each.bytes;
    EXPECT_EQ(ProfileFile(each.bytes).bytes(), each.bytes);
  }
  EXPECT_EQ(ProfileFile("[\xC4]\r\n\xDC=v\r\n").value("\xE4", "\xFC"), "v");
}

TEST(ProfileFile, a_set_changes_no_other_byte_of_the_file) {
  struct Case {
    const char* before;
    const char* after;  // k of section s was set to "new"
  };
  const Case cases[] = {
      {"", "[s]\r\nk=new\r\n"},
      {"[HEADER]", "[HEADER]\r\n[s]\r\nk=new\r\n"},
      {"[S]\r\nK=old\r\n", "[S]\r\nK=new\r\n"},
      {"[s]\nk=old\nj=1\n", "[s]\nk=new\r\nj=1\n"},
      {"[s]\r\nj=1", "[s]\r\nj=1\r\nk=new\r\n"},
      {"[s]\r\n\r\n[t]\r\n", "[s]\r\nk=new\r\n\r\n[t]\r\n"},
      {"[s]\r\nj=1\r\n\r\n[t]\r\n", "[s]\r\nj=1\r\nk=new\r\n\r\n[t]\r\n"},
      {"[s]\r\n[t]\r\nk=t", "[s]\r\nk=new\r\n[t]\r\nk=t"},
      {"[s]\r\n;note\r\ngarbage\r\nk=1\r\nk=2\r\n", "[s]\r\n;note\r\ngarbage\r\nk=new\r\nk=2\r\n"},
      {"junk\r\n\r\n", "junk\r\n\r\n[s]\r\nk=new\r\n"},
  };
  for (const Case& each : cases) {
    ProfileFile file(each.before);
    file.set("s", "k", "new");
    EXPECT_EQ(file.bytes(), each.after);
    EXPECT_EQ(file.size(), file.bytes().size());
    EXPECT_EQ(ProfileFile(file.bytes()).value("s", "k"), "new");
  }
}

TEST(ProfileFile, any_value_comes_back_as_it_was_set_but_for_line_breaks_and_nuls) {
  const std::string values[] = {"", " ", " a ", "a=b", "[x]", ";c", "\\final\\", "\xFF\x80\t", std::string(300, 'v')};
  ProfileFile file;
  for (std::size_t i = 0; i < std::size(values); ++i) {
    file.set("1", "key" + std::to_string(i), "replaced");
    file.set("1", "KEY" + std::to_string(i), values[i]);
  }
  file.set("2", "name", std::string_view("a\r\n[3]\nb\0c", 10));
  const ProfileFile again(file.bytes());
  for (std::size_t i = 0; i < std::size(values); ++i) {
    EXPECT_EQ(again.value("1", "key" + std::to_string(i)), values[i]);
  }
  EXPECT_EQ(again.value("2", "name"), "a  [3] b c");
  EXPECT_FALSE(again.hasSection("3"));
  EXPECT_EQ(again.longestValue("1"), 300u);
}

}  // namespace
}  // namespace vantrel

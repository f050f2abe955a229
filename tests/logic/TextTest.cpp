#include "core/PathText.h"
#include "core/Text.h"

#include <gtest/gtest.h>

#include "core/Numbers.h"
#include "support/FilesContract.h"

namespace vantrel {
namespace {

TEST(Text, code_page_1252_has_these_pairs_of_cases_and_no_others) {
  const std::string upper =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8E\x9F\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
      "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
  const std::string lower =
      "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9E\xFF\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
      "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
  ASSERT_EQ(upper.size(), lower.size());
  for (int byte = 0; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const std::size_t asUpper = upper.find(character);
    const std::size_t asLower = lower.find(character);
    EXPECT_EQ(lowerCase(character), asUpper == std::string::npos ? character : lower[asUpper]) << byte;
    EXPECT_EQ(upperCase(character), asLower == std::string::npos ? character : upper[asLower]) << byte;
  }
}

TEST(Text, each_word_between_blanks_and_tabs_has_a_capital_first_letter) {
  struct Case {
    const char* text;
    const char* cased;
  };
  const Case cases[] = {
      {"", ""},
      {"blood gulch\tARENA", "Blood Gulch\tArena"},
      {"  two  blanks ", "  Two  Blanks "},
      {"king-of-the_HILL.now", "King-of-the_hill.now"},
      {"4way 7UP", "4way 7up"},
      {"line\nfeed\xA0hard", "Line\nfeed\xA0hard"},
      {"\xE9tat \xDC"
       "BER \x9Clet \xDF\xC4",
       "\xC9tat \xDC"
       "ber \x8Clet \xDF\xE4"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(capitalizeWords(each.text), each.cased);
  }
}

TEST(Numbers, a_text_is_a_number_when_it_is_blanks_sign_digits_and_fraction) {
  struct Case {
    const char* text;
    double number;
  };
  const Case cases[] = {{" 16\t", 16},
                        {"+7", 7},
                        {"-12", -12},
                        {"007", 7},
                        {"-0.25", -0.25},
                        {"12.", 12},
                        {"99999999999", 99999999999.0}};
  for (const Case& each : cases) {
    EXPECT_EQ(toNumber(each.text), each.number) << each.text;
  }
  for (const char* none : {"", " ", "+", ".", ".5", "1e3", "0x10", "1 2", "- 1", "+-1", "1,0", "1a", "nan", "1.2.3",
                           "\xA0"
                           "1",
                           "\r\n1"}) {
    EXPECT_FALSE(isNumeric(none)) << none;
    EXPECT_EQ(failureOf([&] { toInteger16(none); }), 13) << none;
  }
  EXPECT_FALSE(isNumeric(std::string_view("1\0", 2)));
}

TEST(Numbers, a_count_is_16_bit_and_a_half_goes_to_the_even_neighbour) {
  struct Case {
    const char* text;
    int count;
  };
  for (const Case& each : {Case{"32767", 32767}, Case{"-32768", -32768}, Case{"0.5", 0}, Case{"1.5", 2}, Case{"2.5", 2},
                           Case{"-1.5", -2}, Case{"32767.4", 32767}}) {
    EXPECT_EQ(toInteger16(each.text), each.count) << each.text;
  }
  const std::string enormous(400, '9');
  for (const char* wide : {"32768", "-32769", "32767.5", "99999999999", enormous.c_str()}) {
    EXPECT_EQ(failureOf([&] { toInteger16(wide); }), 6) << wide;
  }
  EXPECT_EQ(addInteger16(32766, 1), 32767);
  EXPECT_EQ(failureOf([] { addInteger16(32767, 1); }), 6);
}

TEST(PathText, a_path_reads_in_the_code_page_as_it_does_on_the_system) {
  EXPECT_EQ(pathText("/a\xC3\xA4\xE2\x82\xAC/\xE6\x97\xA5\xF0\x9F\x98\x80"), "/a\xE4\x80/??");
  EXPECT_EQ(pathText("\xE4/\xC3"), "\xE4/\xC3");
}

}  // namespace
}  // namespace vantrel

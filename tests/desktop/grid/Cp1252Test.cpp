#include "desktop/Cp1252.h"

#include <gtest/gtest.h>

namespace vantrel {

TEST(Cp1252, every_byte_comes_back_from_the_toolkit_unchanged) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    all += static_cast<char>(byte);
  }
  EXPECT_EQ(fromCp1252(all).size(), 256);
  EXPECT_EQ(toCp1252(fromCp1252(all)), all);
}

TEST(Cp1252, characters_of_the_code_page_are_those_of_windows) {
  struct Case {
    const char* bytes;
    const char16_t* text;
  };
  for (const Case& known :
       {Case{"\x80uro", u"\u20ACuro"}, Case{"caf\xE9", u"caf\u00E9"}, Case{"\x99\x9F", u"\u2122\u0178"},
        Case{"\x81\x8D\x8F\x90\x9D", u"\u0081\u008D\u008F\u0090\u009D"}, Case{"\t\x7F", u"\t\u007F"}}) {
    EXPECT_EQ(fromCp1252(known.bytes), QString::fromUtf16(known.text));
    EXPECT_EQ(toCp1252(QString::fromUtf16(known.text)), known.bytes);
  }
}

TEST(Cp1252, a_character_that_does_not_exist_becomes_one_question_mark) {
  EXPECT_EQ(toCp1252(QStringLiteral(u"a\u0416b")), "a?b");
  EXPECT_EQ(toCp1252(QStringLiteral(u"a\U0001F600b")), "a?b");
  EXPECT_EQ(toCp1252(QString(QChar(0xD83D)) + QLatin1Char('x')), "?x");
  EXPECT_EQ(toCp1252(QString(QChar(0x80))), "?") << "the byte 80 is the euro sign, not the control character 80";
}

}  // namespace vantrel

#include "desktop/text/Cp1252.h"

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

TEST(Cp1252, characters_are_those_of_windows_and_one_that_does_not_exist_is_one_question_mark) {
  EXPECT_EQ(fromCp1252("\x80uro caf\xE9 \x99\x9F"), QStringLiteral(u"\u20ACuro caf\u00E9 \u2122\u0178"));
  EXPECT_EQ(fromCp1252("\x81\x8D\x8F\x90\x9D\t\x7F"), QStringLiteral(u"\u0081\u008D\u008F\u0090\u009D\t\u007F"));
  EXPECT_EQ(toCp1252(QStringLiteral(u"a\u0416b\U0001F600c")), "a?b?c");
  EXPECT_EQ(toCp1252(QString(QChar(0xD83D)) + QLatin1Char('x')), "?x");
  EXPECT_EQ(toCp1252(QString(QChar(0x80))), "?") << "the byte 80 is the euro sign, not the control character 80";
}

}  // namespace vantrel

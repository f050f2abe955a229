#include "query/modGSAlgorithm.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

// Computed by a second implementation in another language, written from the description alone.
TEST(GSValidate, a_challenge_has_this_answer) {
  struct Case {
    std::string challenge;
    std::string key;
    const char* answer;
  };
  const std::string game = "k7Wm2Q";
  const Case cases[] = {
      {"ABCDEF", game, "umzkXZZf"},
      {"QWERTY", game, "gzzmv3Hi"},
      {"abcdef", game, "NSYXE86L"},
      {std::string(6, '\0'), game, "jxiv1nfJ"},
      {"\xFF\xFF\xFF\xFF\xFF\xFF", game, "7XWv1gVw"},
      {"\x80\x7F\x01\xFEU\xAA", game, "u2EEVmzN"},
      {"TXKOAT", game, "iVjXArnn"},
      {"zZ9/ \\", game, "qFpNJVsQ"},
      {"ABCDEF", "abcdef", "v95gKttW"},
      {"ABCDEF", std::string("\xFF\x00\x80\x01\x7F\xFE", 6), "FViMg1CK"},
      {"ABCDEFGH", game, "umzkXZZf"},
      {"ABCDEF", game + "more", "umzkXZZf"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(GSValidate(each.challenge, each.key), each.answer) << each.challenge;
  }
}

TEST(GSValidate, the_alphabet_has_a_small_i_twice_and_no_plus_sign) {
  std::string alphabet;
  for (int value = 0; value < 64; ++value) {
    alphabet += EncodeChar(static_cast<std::uint8_t>(value));
  }
  EXPECT_EQ(alphabet, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789i/");
}

}  // namespace
}  // namespace vantrel

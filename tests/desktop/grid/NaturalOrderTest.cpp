#include "desktop/NaturalOrder.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantrel {

TEST(NaturalOrder, texts_stand_as_people_expect_them) {
  const std::vector<std::string> expected = {
      "0 ms",   "9 ms",     "80 ms",    "080 ms later", "180 ms",   "2302",   "[clan] 9", "Alpha",
      "beta 2", "Beta 10",  "beta 10a", "beta x",       "firewall", "map1v2", "map1v10",  "Na\xEFve",
      "server", "server 1", "zulu",     "\xC9tang",     "",         "...",    "???",
  };
  for (std::size_t left = 0; left < expected.size(); ++left) {
    for (std::size_t right = left + 1; right < expected.size(); ++right) {
      EXPECT_LT(naturalKey(expected[left]), naturalKey(expected[right])) << expected[left] << " | " << expected[right];
    }
  }
}

TEST(NaturalOrder, case_leading_zeros_and_control_characters_make_no_difference) {
  EXPECT_EQ(naturalKey("SERVER \xC9\x8A\x9F"), naturalKey("server \xE9\x9A\xFF"));
  EXPECT_EQ(naturalKey("map 007"), naturalKey("map 7"));
  EXPECT_EQ(naturalKey("000"), naturalKey("0"));
  EXPECT_EQ(naturalKey("\x01\x02name\x9D"), naturalKey("name"));
}

TEST(NaturalOrder, numbers_of_any_length_compare_as_numbers) {
  for (const std::size_t length : {1u, 9u, 10u, 254u, 255u, 256u, 10000u}) {
    const std::string nines(length, '9');
    const std::string ones(length + 1, '1');
    EXPECT_LT(naturalKey(nines), naturalKey(ones)) << length;
    EXPECT_LT(naturalKey(nines.substr(1) + "8"), naturalKey(nines)) << length;
    EXPECT_EQ(naturalKey(std::string(5000, '0') + nines), naturalKey(nines)) << length;
  }
}

}  // namespace vantrel

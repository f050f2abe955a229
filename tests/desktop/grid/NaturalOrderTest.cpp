#include "desktop/grid/NaturalOrder.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantrel {

TEST(NaturalOrder, texts_stand_as_people_expect_them) {
  const std::vector<std::string> expected = {
      "0 ms",   "9 ms",     "80 ms",    "080 ms later", "180 ms",   "2302",   "[clan] 9", "Alpha",
      "beta 2", "Beta 10",  "beta 10a", "beta x",       "firewall", "map1v2", "map1v10",  "Na\xEFve",
      "server", "server 1", "zulu",     "\xC9tang",     "",         "...",    "???",
  };
  for (std::size_t i = 1; i < expected.size(); ++i) {
    EXPECT_LT(naturalKey(expected[i - 1]), naturalKey(expected[i])) << expected[i - 1] << " | " << expected[i];
  }
  EXPECT_EQ(naturalKey("SERVER \xC9\x8A\x9F 007"), naturalKey("server \xE9\x9A\xFF 7"));
  EXPECT_EQ(naturalKey("\x01\x02name 000\x9D"), naturalKey("name 0"));
}

TEST(NaturalOrder, numbers_of_any_length_compare_as_numbers) {
  for (const std::size_t length : {1u, 9u, 10u, 254u, 255u, 256u, 10000u}) {
    const std::string nines(length, '9');
    EXPECT_LT(naturalKey(nines), naturalKey(std::string(length + 1, '1'))) << length;
    EXPECT_LT(naturalKey(nines.substr(1) + "8"), naturalKey(nines)) << length;
    EXPECT_EQ(naturalKey(std::string(5000, '0') + nines), naturalKey(nines)) << length;
  }
}

}  // namespace vantrel

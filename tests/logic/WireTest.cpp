// What comes in from the network, taken apart: status replies and the master server's list.
#include <gtest/gtest.h>

#include "query/MasterListReader.h"
#include "query/StatusReply.h"
#include "support/FilesContract.h"
#include "support/World.h"

namespace vantrel {
namespace {

TEST(StatusReply, the_first_key_is_dropped_by_its_place_and_the_rest_is_split) {
  struct Case {
    std::string datagram;
    std::vector<std::string> elements;
  };
  const Case cases[] = {
      {"\\hostname\\Fun\\mapname\\dune", {"Fun", "mapname", "dune"}},
      {"\\hostname\\\\mapname\\", {"", "mapname", ""}},
      {"\\key\\Fun\\a", {"Fun", "a"}},
      {"\\ab\\Fun\\a\\b", {"a", "b"}},  // A first key this short takes its value along.
      {"", {""}},
      {"hostname", {"hostname"}},
      {"name\\rest", {"rest"}},
      {"nam\\rest", {"nam", "rest"}},
      {std::string("\\hostname\\a\0\xFF\\b", 15), {std::string("a\0\xFF", 3), "b"}},
  };
  for (const Case& each : cases) {
    const StatusReply reply = ParseStatusReply(each.datagram);
    ASSERT_EQ(static_cast<std::size_t>(reply.count()), each.elements.size()) << each.datagram;
    for (int i = 0; i < reply.count(); ++i) {
      EXPECT_EQ(reply.element(i), each.elements[static_cast<std::size_t>(i)]) << each.datagram;
    }
    EXPECT_EQ(failureOf([&] { reply.element(reply.count()); }), 9);
    EXPECT_EQ(failureOf([&] { reply.element(-1); }), 9);
  }
}

const std::string mark = "\\final\\";

std::string textOf(const std::vector<ServerAddress>& addresses) {
  std::string text;
  for (const ServerAddress& address : addresses) {
    text += address.ip + ":" + std::to_string(address.port) + " ";
  }
  return text;
}

TEST(MasterListReader, a_list_is_records_of_six_bytes_without_its_end_marks) {
  struct Case {
    std::string bytes;
    const char* addresses;
  };
  const std::string one = listRecord("192.0.2.1", 2302);
  const std::string two = listRecord("198.51.100.255", 65535);
  const Case cases[] = {
      {mark, ""},
      {one + two + mark, "192.0.2.1:2302 198.51.100.255:65535 "},
      {one + two.substr(0, 5) + mark, "192.0.2.1:2302 "},
      {one.substr(0, 3) + mark + one.substr(3) + two, "192.0.2.1:2302 198.51.100.255:65535 "},
      {mark + mark + one + mark, "192.0.2.1:2302 "},
      {"\\final\\final\\.", "102.105.110.97:27740 "},   // One mark, and the rest is "final\".
      {"\\fi\\final\\nal\\", "92.102.105.110:24940 "},  // What closes up behind a mark is none.
  };
  for (const Case& each : cases) {
    MasterListReader reader;
    std::string found = textOf(reader.read(each.bytes));
    found += textOf(reader.finish());
    EXPECT_EQ(found, each.addresses);
  }
}

TEST(MasterListReader, any_cut_into_arrivals_gives_the_same_addresses) {
  const std::string list = listRecord("92.102.105.110", 24940) + listRecord("1.2.3.92", 23654) + "\\final" +
                           listRecord("92.92.92.92", 23644) + mark + listRecord("192.0.2.1", 2302) + "\\fin" + mark +
                           std::string(6, '\0') + mark + listRecord("198.51.100.1", 92) +
                           listRecord("10.0.0.92", 23644);
  for (const std::string& end : {mark, std::string("\\fi"), std::string()}) {
    const std::string bytes = list + end;
    std::string expected;
    for (std::size_t i = 0; i <= bytes.size(); ++i) {
      for (std::size_t j = i; j <= bytes.size(); ++j) {
        MasterListReader reader;
        std::string found = textOf(reader.read(bytes.substr(0, i)));
        found += textOf(reader.read(bytes.substr(i, j - i)));
        found += textOf(reader.read(bytes.substr(j)));
        found += textOf(reader.finish());
        expected = expected.empty() ? found : expected;
        ASSERT_EQ(found, expected) << "cut at " << i << " and " << j;
      }
    }
  }
}

}  // namespace
}  // namespace vantrel

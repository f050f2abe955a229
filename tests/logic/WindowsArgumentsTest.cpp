// A command line taken apart as Windows programs do.
#include "core/WindowsArguments.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(WindowsArgumentsTest, blanks_part_arguments_and_quotes_and_backslashes_keep_them_together) {
  struct Case {
    const char* line;
    std::vector<std::string> arguments;
  };
  const Case cases[] = {
      {"", {}},
      {" \t ", {}},
      {"  -console \t-connect 192.0.2.1:2302 ", {"-console", "-connect", "192.0.2.1:2302"}},
      {"\"a b\" c\"d e\"f", {"a b", "cd ef"}},
      {"\"\" x", {"", "x"}},
      {"\"say \"\"hi\"\" to\" me", {"say \"hi\" to", "me"}},
      {"a\\\\b \"c:\\dir\\\\\" d\\\"e f\\\\\\\"g", {"a\\\\b", "c:\\dir\\", "d\"e", "f\\\"g"}},
      {"\"left open -x", {"left open -x"}},
      {"trailing\\\\", {"trailing\\\\"}},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(windowsArguments(each.line), each.arguments) << each.line;
  }
}

}  // namespace
}  // namespace vantrel

// What the usual web servers list is read as the words that name maps.

#include <gtest/gtest.h>

#include "export/modHTML2Text.h"
#include "maps/MirrorIndex.h"
#include "sandbox/IndexPages.h"
#include "support/FakeFiles.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

TEST(MirrorPages, maps_are_found_in_the_lists_of_the_usual_web_servers) {
  const std::string longName = "a_map_with_a_name_that_is_longer_than_a_list_would_like_it_to_be";
  const std::vector<sandbox::WebEntry> entries = {{"sub", true, 0, 0},
                                                  {"Lake.zip", false, 1'234'567, 1'700'000'000},
                                                  {longName + ".zip", false, 5000, 1'700'000'000},
                                                  {"pond.zip", false, 5000, 1'700'000'000},
                                                  {"readme.txt", false, 5, 1'700'000'000}};
  struct {
    const char* folder;
    bool finds;  // a list without anything between its lines joins the words at their ends
  } const cases[] = {{"/maps/", true}, {"/apache/", true}, {"/apache-pre/", true}, {"/lighttpd/", false}};
  VirtualLoop loop;
  FakeFiles files;
  modHTML2Text reduction(loop, files);
  for (const auto& c : cases) {
    const sandbox::IndexPage page = sandbox::indexPage(c.folder, entries, sandbox::loopbackEndpoint("127.0.0.1", 80));
    const std::string text = reduction.HtmlToText(page.html, "");
    EXPECT_EQ(indexHasMap(text, "pond"), c.finds) << text;
    EXPECT_EQ(indexHasMap(text, "Lake"), c.finds) << c.folder;
    EXPECT_FALSE(indexHasMap(text, "lake") || indexHasMap(text, "readme")) << c.folder;
    std::string all;
    for (const std::string& map : indexMaps(text)) {
      all += map + " ";
    }
    EXPECT_NE(all.find("pond"), std::string::npos) << c.folder;
    EXPECT_EQ(all.find("readme "), std::string::npos) << c.folder;
  }
}

}  // namespace
}  // namespace vantrel

// The desktop's table of programs for links: what a claim and a withdrawal leave in the user's files.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>

#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/XdgSchemes.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

struct XdgSchemesTest : testing::Test {
  XdgSchemes of(const std::string& program) { return {files, {home + "/data", home + "/config", program}}; }
  std::string bytes(const std::string& path) { return files.read(home + path); }
  void write(const std::string& path, const std::string& text) {
    std::ofstream(home + path, std::ios::binary | std::ios::trunc) << text;
  }

  QTemporaryDir folder;
  std::string home = folder.path().toStdString();
  DiskFiles files;
};

TEST_F(XdgSchemesTest, a_claim_lasts_until_the_program_moves_or_another_takes_the_links) {
  XdgSchemes here = of("/opt/vantrel/vantrel-ce");
  EXPECT_FALSE(here.isMine("halo"));
  here.claim("halo");
  EXPECT_TRUE(here.isMine("halo"));
  EXPECT_FALSE(here.isMine("gopher"));
  XdgSchemes moved = of("/home/me/my games/vantrel-ce");
  EXPECT_FALSE(moved.isMine("halo"));
  moved.claim("halo");
  EXPECT_TRUE(moved.isMine("halo"));
  EXPECT_NE(bytes("/data/applications/vantrel-ce-links.desktop").find("Exec=\"/home/me/my games/vantrel-ce\" %u\n"),
            std::string::npos);
  write("/config/mimeapps.list", "[Default Applications]\nx-scheme-handler/halo=other.desktop\n");
  EXPECT_FALSE(moved.isMine("halo"));
  moved.withdraw("halo");
  EXPECT_EQ(bytes("/config/mimeapps.list"), "[Default Applications]\nx-scheme-handler/halo=other.desktop\n");
  EXPECT_FALSE(files.stamp(home + "/data/applications/vantrel-ce-links.desktop"));
}

TEST_F(XdgSchemesTest, the_rest_of_the_list_stays_as_it_was) {
  XdgSchemes schemes = of("/opt/vantrel-ce");
  schemes.claim("halo");
  const std::string others =
      "# mine\n[Added Associations]\nx-scheme-handler/halo=a.desktop\n\n[Default Applications]\n";
  write("/config/mimeapps.list", others + "x-scheme-handler/halo = b.desktop;c.desktop\r\ntext/html=d.desktop\n");
  EXPECT_FALSE(schemes.isMine("halo"));
  schemes.claim("halo");
  EXPECT_EQ(bytes("/config/mimeapps.list"),
            others + "x-scheme-handler/halo=vantrel-ce-links.desktop;b.desktop;c.desktop;\ntext/html=d.desktop\n");
  schemes.withdraw("halo");
  EXPECT_EQ(bytes("/config/mimeapps.list"),
            others + "x-scheme-handler/halo=b.desktop;c.desktop;\ntext/html=d.desktop\n");
}

TEST_F(XdgSchemesTest, a_list_that_cannot_be_written_is_a_failure_and_no_home_is_none) {
  write("/config", "a file where the folder should be");
  EXPECT_THROW(of("/opt/vantrel-ce").claim("halo"), Failure);
  EXPECT_FALSE(files.stamp(home + "/data/applications/vantrel-ce-links.desktop"));
  XdgSchemes homeless(files, {});
  homeless.claim("halo");
  homeless.withdraw("halo");
  EXPECT_TRUE(homeless.isMine("halo"));
}

TEST(QuotedForEntry, marks_that_mean_something_in_a_command_are_escaped) {
  const std::pair<const char*, const char*> paths[] = {{"/opt/v-1.0/x", "/opt/v-1.0/x"},
                                                       {"/a b/c", "\"/a b/c\""},
                                                       {"/100%/x", "\"/100%%/x\""},
                                                       {"/a$b`c", "\"/a\\\\$b\\\\`c\""},
                                                       {"/a\"b", "\"/a\\\\\"b\""}};
  for (const auto& [path, quoted] : paths) {
    EXPECT_EQ(quotedForEntry(path), quoted);
  }
}

}  // namespace
}  // namespace vantrel

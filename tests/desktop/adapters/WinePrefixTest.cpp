#include "desktop/adapters/WinePrefix.h"

#include <unistd.h>

#include <QTemporaryDir>
#include <filesystem>

#include "desktop/adapters/DiskFiles.h"
#include "support/FilesContract.h"

namespace vantrel {
namespace {

constexpr const char* head = "WINE REGISTRY Version 2\n\n#arch=win64\n\n";

struct WinePrefixTest : testing::Test {
  WinePrefixTest() {
    for (const char* const folder : {"/drive_c/Program Files (x86)/Microsoft Games/Halo CE", "/dosdevices", "/games"}) {
      std::filesystem::create_directories(prefix + folder);
    }
    EXPECT_EQ(::symlink("../drive_c", (prefix + "/dosdevices/c:").c_str()), 0);
    EXPECT_EQ(::symlink((prefix + "/games").c_str(), (prefix + "/dosdevices/d:").c_str()), 0);
    EXPECT_EQ(::symlink("/", (prefix + "/dosdevices/z:").c_str()), 0);
  }
  // What the machine's value comes back as, below the prefix.
  std::string readBack(const std::string& value) {
    files.replace(prefix + "/system.reg", head + std::string("[Software\\\\Key] 1\n\"Path\"=\"") + value + "\"\n");
    const std::string read = wine.read(RegistryRoot::localMachine, "SOFTWARE\\Key", "path").value_or("nothing");
    return read.starts_with(prefix) ? read.substr(prefix.size()) : read;
  }

  QTemporaryDir folder;
  std::string prefix = std::filesystem::canonical(folder.path().toStdString()).string();
  DiskFiles files;
  WinePrefix wine{files, prefix};
};

TEST_F(WinePrefixTest, a_path_with_a_drive_becomes_the_folder_that_it_means_here) {
  const std::pair<std::string, std::string> meanings[] = {
      {R"(C:\\Program Files (x86)\\Microsoft Games\\Halo CE\\)",
       "/drive_c/Program Files (x86)/Microsoft Games/Halo CE"},
      {R"(c:\\PROGRAM FILES (X86)\\.\\microsoft games\\x\\..\\halo ce)",
       "/drive_c/Program Files (x86)/Microsoft Games/Halo CE"},
      {R"(C:\\Not\\There\\)", "/drive_c/Not/There"},
      {R"(C:\\..\\games)", "nothing"},
      {R"(C:\\x\\..\\..\\games)", "nothing"},
      {R"(D:\\)", "/games"},
      {R"(Z:\\etc\\..\\)", "/"},
      {R"(E:\\Halo)", "nothing"},
      {R"(no path)", "no path"},
      {R"(C:)", "C:"}};
  for (const auto& [value, meaning] : meanings) {
    EXPECT_EQ(readBack(value), meaning) << value;
  }
  std::filesystem::remove_all(prefix + "/dosdevices");
  EXPECT_EQ(readBack(R"(C:\\Program Files (x86))"), "/drive_c/Program Files (x86)");
  EXPECT_EQ(readBack(R"(D:\\)"), "nothing");
}

TEST_F(WinePrefixTest, each_root_has_its_file_and_32_bit_programs_their_own_keys) {
  files.replace(prefix + "/user.reg", head + std::string("[Software\\\\Key]\n\"Name\"=\"user\"\n"));
  files.replace(prefix + "/system.reg",
                head + std::string("[Software\\\\Wow6432Node\\\\Key]\n\"Name\"=\"small\"\n"
                                   "\"Both\"=\"small\"\n[Software\\\\Key]\n\"Both\"=\"own\"\n"));
  EXPECT_EQ(wine.read(RegistryRoot::currentUser, "Software\\Key", "Name"), "user");
  EXPECT_EQ(wine.read(RegistryRoot::localMachine, "SOFTWARE\\key", "Name"), "small");
  EXPECT_EQ(wine.read(RegistryRoot::localMachine, "Software\\Key", "both"), "own");
  EXPECT_EQ(wine.read(RegistryRoot::classesRoot, "Software\\Key", "Name"), std::nullopt);
  EXPECT_EQ(failureOf([&] { wine.write(RegistryRoot::currentUser, "Key", "Name", RegistryType::text, "x"); }), 75);
  EXPECT_EQ(WinePrefix(files, prefix + "/none").read(RegistryRoot::currentUser, "Software\\Key", "Name"), std::nullopt);
}

}  // namespace
}  // namespace vantrel

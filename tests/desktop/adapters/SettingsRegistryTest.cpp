#include "desktop/adapters/SettingsRegistry.h"

#include <sys/stat.h>

#include <QTemporaryDir>

#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/QtLoop.h"
#include "support/FakeFiles.h"
#include "support/FakeRegistry.h"
#include "support/FilesContract.h"
#include "support/RegistryContract.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

constexpr RegistryRoot user = RegistryRoot::currentUser;

struct RealRegistry {
  Registry& registry() { return registry_; }

  QTemporaryDir home_;
  std::string folder_ = home_.path().toStdString() + "/config/vantrel-ce";
  DiskFiles files_;
  QtLoop loop_;
  SettingsRegistry registry_{files_, loop_, folder_, nullptr};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Settings, RegistryContract, RealRegistry);

// On a disk in memory that can fail; the folder itself is real.
struct SettingsRegistryTest : testing::Test {
  SettingsRegistryTest() { files.makeFolder(folder); }
  int writing(const std::string& path, const std::string& name, const std::string& value) {
    return failureOf([&] { registry.write(user, path, name, RegistryType::text, value); });
  }

  QTemporaryDir home;
  std::string folder = home.path().toStdString();
  std::string file = folder + "/registry.ini";
  FakeFiles files;
  VirtualLoop loop;
  FakeRegistry further;
  SettingsRegistry registry{files, loop, folder, &further};
};

TEST(SettingsRegistryFolder, the_first_write_makes_a_private_folder_and_is_on_the_disk_at_once) {
  RealRegistry real;
  real.registry().read(user, "Software\\Key", "name");
  struct stat status {};
  EXPECT_NE(::stat(real.folder_.c_str(), &status), 0) << "reading makes nothing";
  real.registry().write(user, "Software\\Key", "", RegistryType::text, " x ");
  ASSERT_EQ(::stat(real.folder_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
  EXPECT_EQ(real.files_.read(real.folder_ + "/registry.ini"), "[HKEY_CURRENT_USER\\Software\\Key]\r\n@= x \r\n");
}

TEST_F(SettingsRegistryTest, names_that_would_break_the_file_are_refused_and_a_value_stays_one_line) {
  EXPECT_EQ(writing("Key", "name", std::string("a\r\nb=[c]\0d", 10)), 0);
  const std::string before = files.bytes(file);
  EXPECT_EQ(before, "[HKEY_CURRENT_USER\\Key]\r\nname=a  b=[c] d\r\n");
  const std::pair<std::string, std::string> refused[] = {
      {"Ke]y", "name"}, {"Key\n[x]", "name"}, {"Key ", "name"}, {"Key\\", "na=me"},           {"Key", "na\nme"},
      {"Key", " name"}, {"Key", "[name]"},    {"Key", ";name"}, {"Key", std::string(1, '\0')}};
  for (const auto& [path, name] : refused) {
    EXPECT_EQ(writing(path, name, "x"), 75) << path << "|" << name;
    EXPECT_EQ(registry.read(user, path, name), std::nullopt) << path << "|" << name;
  }
  EXPECT_EQ(files.bytes(file), before);
}

TEST_F(SettingsRegistryTest, a_write_to_a_full_disk_is_failure_75_and_made_good_when_there_is_room_again) {
  files.full = true;
  EXPECT_EQ(writing("Key", "name", "kept"), 75);
  EXPECT_EQ(files.bytes(file), "");
  files.full = false;
  loop.wait(ProfileFiles::retryTime);
  EXPECT_EQ(files.bytes(file), "[HKEY_CURRENT_USER\\Key]\r\nname=kept\r\n");
}

TEST_F(SettingsRegistryTest, a_file_that_cannot_be_read_has_no_values_and_is_left_alone) {
  const std::string held = "[HKEY_CURRENT_USER\\Key]\r\nname=held\r\n";
  files.changeOutside(file, held);
  files.unreadable.insert(file);
  EXPECT_EQ(registry.read(user, "Key", "name"), std::nullopt);
  EXPECT_EQ(writing("Key", "name", "new"), 75);
  loop.wait(2 * ProfileFiles::retryTime);
  files.unreadable.clear();
  EXPECT_EQ(files.bytes(file), held);
  EXPECT_EQ(registry.read(user, "Key", "name"), "held");
}

TEST_F(SettingsRegistryTest, a_damaged_file_gives_what_can_be_read_and_the_second_registry_the_rest) {
  const std::string junk("\x01[\0]\xFF=\n[[x\n=]\r\r\n", 16);
  files.changeOutside(file, junk + "[hkey_current_user\\KEY]\nname=own\n" + junk);
  further.write(user, "Key", "name", RegistryType::text, "further");
  further.write(user, "Key", "other", RegistryType::text, "further");
  EXPECT_EQ(registry.read(user, "Key", "name"), "own");
  EXPECT_EQ(registry.read(user, "Key", "other"), "further");
  EXPECT_EQ(writing("Key", "other", ""), 0);
  EXPECT_EQ(registry.read(user, "Key", "other"), "") << "a value set empty is a value";
}

}  // namespace
}  // namespace vantrel

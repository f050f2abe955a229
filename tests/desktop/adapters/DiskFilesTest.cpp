#include "desktop/adapters/DiskFiles.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <random>
#include <string>

#include "core/StoreRewrites.h"
#include "desktop/adapters/QtLoop.h"
#include "support/FilesContract.h"

namespace vantrel {
namespace {

struct DiskFilesTest : ::testing::Test {
  std::string path(const char* name) const { return folder.path().toStdString() + "/" + name; }

  QTemporaryDir folder;
  DiskFiles files;
};

TEST_F(DiskFilesTest, a_program_killed_in_the_middle_of_replacing_a_file_leaves_the_old_content_or_the_new) {
  const std::string store = path("favorites.ini");
  const std::string one(200'000, 'a');
  const std::string two(300'000, 'b');
  files.replace(store, one);
  std::mt19937 random(3);
  for (int i = 0; i < 40; ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      while (true) {
        files.replace(store, two);
        files.replace(store, one);
      }
    }
    ::usleep(static_cast<useconds_t>(random() % 8000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string left = files.read(store);
    ASSERT_TRUE(left == one || left == two) << "half a store of " << left.size() << " bytes, round " << i;
  }
}

TEST_F(DiskFilesTest, a_file_without_the_right_to_be_written_keeps_its_content_also_for_the_superuser) {
  const std::string store = path("favorites.ini");
  files.replace(store, "held");
  ::chmod(store.c_str(), 0444);
  EXPECT_EQ(failureOf([&] { files.replace(store, "new"); }), 75);
  EXPECT_EQ(files.read(store), "held");
}

TEST_F(DiskFilesTest, a_disk_that_is_full_is_failure_61_and_leaves_no_litter) {
  const std::string store = path("servers.ini");
  files.replace(store, "held");
  // A limit on the size of files is the nearest thing to a full disk that a test may make; the file system of all
  // zeroes gives the real error.
  EXPECT_EQ(failureOf([&] { files.replace("/dev/full", "new"); }), 75);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  ::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_NE(failureOf([&] { files.replace(store, std::string(5000, 'x')); }), 0);
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(files.read(store), "held");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"servers.ini"});
}

TEST_F(DiskFilesTest, a_link_to_a_store_stays_a_link_and_the_store_keeps_its_mode) {
  files.replace(path("real.ini"), "old");
  EXPECT_EQ(failureOf([&] { files.read(path("link.ini")); }), 53);
  struct stat status {};
  ::stat(path("real.ini").c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0600U) << "favorites hold passwords";
  ::chmod(path("real.ini").c_str(), 0640);
  ASSERT_EQ(::symlink(path("real.ini").c_str(), path("link.ini").c_str()), 0);
  files.replace(path("link.ini"), "new");
  EXPECT_EQ(files.read(path("real.ini")), "new");
  ::lstat(path("link.ini").c_str(), &status);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ::stat(path("real.ini").c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

}  // namespace
}  // namespace vantrel

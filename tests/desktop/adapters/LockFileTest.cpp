#include "desktop/adapters/LockFile.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>

namespace vantrel {
namespace {

TEST(LockFileTest, a_second_copy_is_refused_until_the_first_is_killed_though_its_file_stays) {
  const QTemporaryDir home;
  const std::string folder = home.path().toStdString() + "/config/vantrel-ce";
  int told[2];
  ASSERT_EQ(::pipe(told), 0);
  const pid_t first = ::fork();
  if (first == 0) {
    LockFile lock(folder);
    const char answer = lock.acquire() ? 'y' : 'n';
    [[maybe_unused]] const ssize_t written = ::write(told[1], &answer, 1);
    while (true) {
      ::pause();
    }
  }
  char answer = 0;
  ASSERT_EQ(::read(told[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y');
  LockFile second(folder);
  EXPECT_FALSE(second.acquire());
  ::kill(first, SIGKILL);
  ::waitpid(first, nullptr, 0);
  EXPECT_EQ(::access((folder + "/lock").c_str(), F_OK), 0);
  EXPECT_TRUE(second.acquire());
  EXPECT_TRUE(second.acquire()) << "its own lock is no other copy's";
  EXPECT_FALSE(LockFile(folder).acquire());
}

TEST(LockFileTest, where_no_lock_can_be_had_every_copy_may_start) {
  EXPECT_TRUE(LockFile("/proc/none").acquire());
  EXPECT_TRUE(LockFile("/dev/null").acquire());
}

}  // namespace
}  // namespace vantrel

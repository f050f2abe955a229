// The favorites on a real disk while the program is killed in the middle of its work, again and again.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <csignal>
#include <random>
#include <set>

#include "core/StoreRewrites.h"
#include "desktop/adapters/DiskFiles.h"
#include "support/World.h"

namespace vantrel {
namespace {

constexpr int kept = 60;
constexpr int kills = 25;

// The favorites of a program that has its files in a folder of the disk.
struct FavoritesOnDisk {
  explicit FavoritesOnDisk(const std::string& path) : folder(files, path), file(folder.path("\\favorites.ini")) {}

  VirtualLoop loop;
  DiskFiles files;
  AppFolder folder;
  std::string file;
  FakeNotices notices;
  FakeDialogs dialogs;
  Site site{"", "", "", ""};
  frmMain window{loop};
  frmBuddies buddies;
  frmMirror mirror;
  ProfileFiles profiles{files, loop};
  StoreContext context{profiles, loop, notices, folder, site, window, buddies, mirror};
  modFavesIni stores{context};
  StoreRewrites rewrites{context, stores};
  Commands commands{window, notices};
  InputBoxes boxes{window, commands, notices, loop};
  Favorites favorites{{context, stores, rewrites, commands, dialogs}};
};

// Adds the first favorite once more and then deletes it at its old place, and changes another one in the middle of
// that.
[[noreturn]] void workUntilKilled(const std::string& path) {
  FavoritesOnDisk disk(path);
  disk.stores.LoadFaves();
  FavoritesList& list = disk.window.myFaves1;
  for (int i = 0;; ++i) {
    list.select(1);
    disk.commands.clickIt(command::editFave);
    disk.commands.clickIt(command::addFave);
    disk.loop.startTimer(120, TimerKind::once, [&disk, &list, i] {
      list.select(kept / 2);
      disk.commands.clickIt(command::editFave);
      disk.window.cmbGameType.text.set(std::to_string(i));
      disk.commands.clickIt(command::updateFave);
    });
    list.select(1);
    disk.commands.clickIt(command::deleteFave);
  }
}

TEST(KilledRewrite, no_favorite_is_lost_whenever_the_program_dies) {
  const QTemporaryDir dir;
  const std::string path = dir.path().toStdString();
  std::set<std::string> all;
  {
    FavoritesOnDisk disk(path);
    for (int i = 1; i <= kept; ++i) {
      const std::string number = std::to_string(i);
      disk.window.myFaves1.add({"CTF", "pw" + number, "192.0.2." + number + ":2302", "Favorite " + number});
      all.insert("Favorite " + number + " 192.0.2." + number + ":2302 pw" + number);
    }
    disk.rewrites.saveFaves(disk.file);
  }
  std::mt19937 random(20);
  int changed = 0;
  std::string before;
  for (int i = 0; i < kills; ++i) {
    const pid_t child = fork();
    if (child == 0) {
      workUntilKilled(path);
    }
    usleep(std::uniform_int_distribution<useconds_t>(2000, 60000)(random));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    FavoritesOnDisk disk(path);
    disk.stores.LoadFaves();
    std::set<std::string> found;
    for (int number = 1; number <= disk.window.myFaves1.count(); ++number) {
      const FavoriteItem& item = disk.window.myFaves1.at(number);
      found.insert(item.name + " " + item.hostname + " " + item.password);
    }
    ASSERT_EQ(found, all) << "kill " << i;
    const std::string bytes = disk.files.read(disk.file);
    changed += bytes == before ? 0 : 1;
    before = bytes;
  }
  EXPECT_GT(changed, 1) << "the children were killed before they wrote anything";
}

}  // namespace
}  // namespace vantrel

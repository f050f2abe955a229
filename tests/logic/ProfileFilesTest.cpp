#include "core/ProfileFiles.h"

#include <gtest/gtest.h>

#include "support/FakeFiles.h"
#include "support/VirtualLoop.h"
#include "support/World.h"

namespace vantrel {
namespace {

const std::string path = "/app/store.ini";

struct ProfileFilesTest : testing::Test {
  ProfileFilesTest() { files.makeFolder("/app"); }
  std::string disk() const { return files.bytes(path); }

  FakeFiles files;
  VirtualLoop loop;
  ProfileFiles profiles{files, loop};
};

TEST_F(ProfileFilesTest, what_is_set_in_one_turn_is_answered_at_once_and_written_in_one_replacement) {
  for (const char* key : {"a", "b", "c"}) {
    profiles.WriteIniValue(path, "s", key, key);
  }
  EXPECT_EQ(profiles.ReadIniValue(path, "S", "B"), "b");
  EXPECT_TRUE(profiles.exists(path));
  EXPECT_EQ(files.replacements, 0);
  loop.wait(0);
  EXPECT_EQ(disk(), "[s]\r\na=a\r\nb=b\r\nc=c\r\n");
  loop.wait(10000);
  EXPECT_EQ(files.replacements, 1);
}

TEST_F(ProfileFilesTest, a_value_of_300_characters_is_cut_at_254_when_it_is_read_and_kept_whole_in_the_file) {
  const std::string value = std::string(254, 'a') + std::string(46, 'b');
  profiles.WriteIniValue(path, "s", "k", value);
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), value.substr(0, 254));
  EXPECT_EQ(profiles.content(path).value("s", "k"), value);
}

TEST_F(ProfileFilesTest, a_change_from_outside_is_read_before_anything_is_answered) {
  files.changeOutside(path, "[s]\r\nk=1\r\n");
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "1");
  loop.wait(1);
  files.changeOutside(path, "[s]\r\nk=2\r\n");
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "2");
  loop.wait(1);
  files.remove(path);
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "");
  EXPECT_FALSE(profiles.exists(path));
}

TEST_F(ProfileFilesTest, a_change_from_outside_and_changes_not_yet_written_are_merged) {
  files.changeOutside(path, "[s]\r\nk=1\r\n");
  profiles.WriteIniValue(path, "s", "mine", "new");
  profiles.appendLine(path, "[LINE]");
  files.changeOutside(path, "; theirs\r\n[s]\r\nk=2");
  loop.wait(0);
  EXPECT_EQ(disk(), "; theirs\r\n[s]\r\nk=2\r\nmine=new\r\n[LINE]\r\n");
}

TEST_F(ProfileFilesTest, a_change_from_outside_is_answered_also_while_changes_of_its_own_wait_to_be_written) {
  files.changeOutside(path, "[s]\r\nk=1\r\nlong=" + std::string(2000, 'x') + "\r\n");
  profiles.WriteIniValue(path, "s", "mine", "new", WritePace::whenGrown);
  loop.wait(10);
  files.changeOutside(path, "[s]\r\nk=2\r\n");
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "2");
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "mine"), "new");
}

TEST_F(ProfileFilesTest, a_full_disk_loses_nothing_and_is_tried_again) {
  files.changeOutside(path, "[s]\r\nk=old\r\n");
  files.full = true;
  profiles.WriteIniValue(path, "s", "k", "new");
  loop.wait(20000);
  EXPECT_EQ(disk(), "[s]\r\nk=old\r\n");
  EXPECT_FALSE(profiles.flush());
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "new");
  files.full = false;
  loop.wait(ProfileFiles::retryTime);
  EXPECT_EQ(disk(), "[s]\r\nk=new\r\n");
  EXPECT_TRUE(profiles.flush());
}

TEST_F(ProfileFilesTest, a_file_that_cannot_be_read_is_never_overwritten_and_is_merged_when_it_can) {
  files.changeOutside(path, "[s]\r\nk=precious\r\n");
  files.unreadable.insert(path);
  profiles.WriteIniValue(path, "s", "j", "new");
  loop.wait(20000);
  EXPECT_EQ(disk(), "[s]\r\nk=precious\r\n");
  files.unreadable.clear();
  loop.wait(ProfileFiles::retryTime);
  EXPECT_EQ(disk(), "[s]\r\nk=precious\r\nj=new\r\n");
}

TEST_F(ProfileFilesTest, what_is_not_yet_written_is_written_at_the_end) {
  {
    ProfileFiles shortLived(files, loop);
    shortLived.WriteIniValue(path, "s", "k", "v");
  }
  EXPECT_EQ(disk(), "[s]\r\nk=v\r\n");
  loop.wait(10000);
}

TEST_F(ProfileFilesTest, a_growing_file_of_5000_rows_costs_at_most_20_times_its_size_and_is_whole_a_second_later) {
  World world;
  for (int row = 1; row <= 5000; ++row) {
    world.stores.WriteServerCache(path, static_cast<std::int16_t>(row),
                                  {"A server of some name", "192.0.2.1", "2302", "Bloodgulch", "5/16", "Slayer", "No"});
    world.loop.wait(10);
  }
  world.loop.wait(ProfileFiles::quietTime);
  EXPECT_NE(world.onDisk("store.ini").find("\r\n[5000]\r\n"), std::string::npos);
  EXPECT_NE(world.onDisk("store.ini").find("\r\nServers=5000\r\n"), std::string::npos);
  EXPECT_LE(world.files.replacedBytes, 20 * world.onDisk("store.ini").size());
}

TEST_F(ProfileFilesTest, a_draft_is_seen_under_its_own_name_only_until_it_is_committed) {
  files.changeOutside(path, "[s]\r\nk=old\r\n");
  const std::string draft = profiles.beginDraft(path);
  profiles.WriteIniValue(draft, "s", "k", "new");
  loop.wait(10000);
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "old");
  EXPECT_EQ(profiles.ReadIniValue(draft, "s", "k"), "new");
  EXPECT_EQ(files.replacements, 0);
  profiles.WriteIniValue(path, "s", "late", "change of the old content");
  profiles.commitDraft(path);
  loop.wait(10000);
  EXPECT_EQ(disk(), "[s]\r\nk=new\r\n");
  EXPECT_EQ(profiles.beginDraft(path), draft);
  EXPECT_EQ(profiles.ReadIniValue(draft, "s", "k"), "");
  profiles.dropDraft(path);
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "new");
}

TEST_F(ProfileFilesTest, a_draft_that_the_disk_does_not_take_is_answered_and_tried_again) {
  files.changeOutside(path, "[s]\r\nk=old\r\n");
  profiles.ReadIniValue(path, "s", "k");
  profiles.WriteIniValue(profiles.beginDraft(path), "s", "k", "new");
  files.full = true;
  profiles.commitDraft(path);
  EXPECT_EQ(disk(), "[s]\r\nk=old\r\n");
  EXPECT_EQ(profiles.ReadIniValue(path, "s", "k"), "new");
  files.full = false;
  loop.wait(ProfileFiles::retryTime);
  EXPECT_EQ(disk(), "[s]\r\nk=new\r\n");
}

TEST_F(ProfileFilesTest,
       a_file_that_could_not_be_read_keeps_its_content_beside_a_committed_draft_and_older_copies_too) {
  files.changeOutside(path, "precious");
  files.changeOutside(path + ".bak", "older copy");
  files.unreadable.insert(path);
  profiles.ReadIniValue(path, "s", "k");
  profiles.WriteIniValue(profiles.beginDraft(path), "s", "k", "new");
  profiles.commitDraft(path);
  loop.wait(10000);
  EXPECT_EQ(disk(), "[s]\r\nk=new\r\n");
  std::string kept = files.bytes(path + ".bak") + files.bytes(path + ".bak2");
  EXPECT_NE(kept.find("precious"), std::string::npos) << kept;
  EXPECT_NE(kept.find("older copy"), std::string::npos) << kept;
}

}  // namespace
}  // namespace vantrel

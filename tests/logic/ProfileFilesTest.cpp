#include "core/ProfileFiles.h"

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

const std::string file = World::path("store.ini");

struct ProfileFilesTest : testing::Test, World {
  std::string disk() const { return files.bytes(file); }
  std::string valueOf(const char* key) { return profiles.ReadIniValue(file, "s", key); }
  void set(const char* key, const std::string& value) { profiles.WriteIniValue(file, "s", key, value); }
};

TEST_F(ProfileFilesTest, what_is_set_in_one_turn_is_answered_at_once_and_written_in_one_replacement) {
  for (const char* key : {"a", "b", "c"}) {
    set(key, key);
  }
  EXPECT_EQ(profiles.ReadIniValue(file, "S", "B"), "b");
  EXPECT_TRUE(profiles.exists(file));
  EXPECT_EQ(files.replacements, 0);
  loop.wait(0);
  EXPECT_EQ(disk(), "[s]\r\na=a\r\nb=b\r\nc=c\r\n");
  loop.wait(10000);
  EXPECT_EQ(files.replacements, 1);
}

TEST_F(ProfileFilesTest, a_value_of_300_characters_is_cut_at_254_when_it_is_read_and_kept_whole_in_the_file) {
  const std::string value = std::string(254, 'a') + std::string(46, 'b');
  set("k", value);
  EXPECT_EQ(valueOf("k"), value.substr(0, 254));
  EXPECT_EQ(profiles.content(file).value("s", "k"), value);
}

TEST_F(ProfileFilesTest, a_change_from_outside_is_read_before_anything_is_answered_also_while_own_changes_wait) {
  files.changeOutside(file, "[s]\r\nk=1\r\nlong=" + std::string(2000, 'x') + "\r\n");
  profiles.WriteIniValue(file, "s", "mine", "new", WritePace::whenGrown);
  EXPECT_EQ(valueOf("k"), "1");
  loop.wait(1);
  files.changeOutside(file, "[s]\r\nk=2\r\n");
  EXPECT_EQ(valueOf("k") + valueOf("mine"), "2new");
  profiles.flush();
  loop.wait(1);
  files.remove(file);
  EXPECT_EQ(valueOf("k"), "");
  EXPECT_FALSE(profiles.exists(file));
}

TEST_F(ProfileFilesTest, a_change_from_outside_and_changes_not_yet_written_are_merged) {
  files.changeOutside(file, "[s]\r\nk=1\r\n");
  set("mine", "new");
  profiles.appendLine(file, "[LINE]");
  files.changeOutside(file, "; theirs\r\n[s]\r\nk=2");
  loop.wait(0);
  EXPECT_EQ(disk(), "; theirs\r\n[s]\r\nk=2\r\nmine=new\r\n[LINE]\r\n");
}

TEST_F(ProfileFilesTest, a_disk_that_is_full_or_cannot_be_read_loses_nothing_and_is_tried_again) {
  const std::function<void()> faults[] = {[&] { files.full = true; }, [&] { files.unreadable.insert(file); }};
  for (const auto& fault : faults) {
    loop.wait(1);
    files.changeOutside(file, "[s]\r\nk=precious\r\n");
    fault();
    set("j", "new");
    loop.wait(20000);
    EXPECT_EQ(disk(), "[s]\r\nk=precious\r\n");
    EXPECT_FALSE(profiles.flush());
    EXPECT_EQ(valueOf("j"), "new");
    files.full = false;
    files.unreadable.clear();
    loop.wait(ProfileFiles::retryTime);
    EXPECT_EQ(disk(), "[s]\r\nk=precious\r\nj=new\r\n");
    EXPECT_TRUE(profiles.flush());
  }
}

TEST_F(ProfileFilesTest, what_is_not_yet_written_is_written_at_the_end) {
  {
    ProfileFiles shortLived(files, loop);
    shortLived.WriteIniValue(file, "s", "k", "v");
  }
  EXPECT_EQ(disk(), "[s]\r\nk=v\r\n");
  loop.wait(10000);
}

TEST_F(ProfileFilesTest, a_growing_file_of_5000_rows_costs_at_most_20_times_its_size_and_is_whole_a_second_later) {
  for (int row = 1; row <= 5000; ++row) {
    stores.WriteServerCache(file, static_cast<std::int16_t>(row),
                            {"A server of some name", "192.0.2.1", "2302", "Bloodgulch", "5/16", "Slayer", "No"});
    loop.wait(10);
  }
  loop.wait(ProfileFiles::quietTime);
  EXPECT_NE(disk().find("\r\n[5000]\r\n"), std::string::npos);
  EXPECT_NE(disk().find("\r\nServers=5000\r\n"), std::string::npos);
  EXPECT_LE(files.replacedBytes, 20 * disk().size());
}

TEST_F(ProfileFilesTest, a_draft_is_seen_under_its_own_name_only_until_it_is_committed) {
  files.changeOutside(file, "[s]\r\nk=old\r\n");
  const std::string draft = profiles.beginDraft(file);
  profiles.WriteIniValue(draft, "s", "k", "new");
  loop.wait(10000);
  EXPECT_EQ(valueOf("k"), "old");
  EXPECT_EQ(files.replacements, 0);
  set("late", "change of the old content");
  files.full = true;
  profiles.commitDraft(file);
  EXPECT_EQ(disk(), "[s]\r\nk=old\r\n") << "a disk that does not take it is tried again";
  EXPECT_EQ(valueOf("k"), "new");
  files.full = false;
  loop.wait(ProfileFiles::retryTime);
  EXPECT_EQ(disk(), "[s]\r\nk=new\r\n");
  EXPECT_EQ(profiles.ReadIniValue(profiles.beginDraft(file), "s", "k"), "");
  profiles.dropDraft(file);
  EXPECT_EQ(valueOf("k"), "new");
}

TEST_F(ProfileFilesTest, an_unreadable_file_keeps_its_content_beside_a_committed_draft_and_older_copies_too) {
  files.changeOutside(file, "precious");
  files.changeOutside(file + ".bak", "older copy");
  files.unreadable.insert(file);
  valueOf("k");
  profiles.WriteIniValue(profiles.beginDraft(file), "s", "k", "new");
  profiles.commitDraft(file);
  loop.wait(10000);
  EXPECT_EQ(disk(), "[s]\r\nk=new\r\n");
  EXPECT_EQ(files.bytes(file + ".bak") + " " + files.bytes(file + ".bak2"), "older copy precious");
}

}  // namespace
}  // namespace vantrel

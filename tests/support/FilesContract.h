// What every Files promises, told against a harness with these members:
//   Files& files();
//   std::string folder();                   path of an empty folder, without a separator at its end
//   void makeFolder(const std::string& path);
//   void changeOutside(path, bytes);        what another program does: writes the file in place
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"

namespace vantrel {

// The number of the failure that `act` ends in; 0 when it does not fail.
template <class Act>
int failureOf(Act act) {
  try {
    act();
    return 0;
  } catch (const Failure& failure) {
    return failure.number;
  }
}

template <class Harness>
struct FilesContract : testing::Test {
  std::string in(const std::string& name) { return harness.folder() + pathSeparator + name; }

  Harness harness;
  Files& files = harness.files();
};
TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, a_file_holds_what_replaced_it_goes_when_removed_and_takes_a_new_name_over_another) {
  const std::string from = this->in("new.ini");
  const std::string to = this->in("old.ini");
  for (const std::string& bytes : {std::string("a\r\n\0\xFF", 5), std::string(), std::string(300000, 'x')}) {
    this->files.replace(from, bytes);
    EXPECT_EQ(this->files.read(from), bytes);
    EXPECT_EQ(this->files.stamp(from)->size, bytes.size());
  }
  this->files.replace(to, "old");
  this->files.rename(from, to);
  EXPECT_EQ(this->files.read(to), std::string(300000, 'x'));
  EXPECT_EQ(this->files.stamp(from), std::nullopt);
  this->files.remove(to);
  EXPECT_EQ(this->files.stamp(to), std::nullopt);
}

TYPED_TEST_P(FilesContract, a_stamp_changes_with_the_file_and_only_then) {
  const std::string path = this->in("store.ini");
  this->files.replace(path, "one");
  const auto first = this->files.stamp(path);
  this->files.read(path);
  EXPECT_EQ(this->files.stamp(path), first);
  this->files.replace(path, "two");
  const auto second = this->files.stamp(path);
  EXPECT_NE(second, first);
  this->harness.changeOutside(path, "three");
  EXPECT_NE(this->files.stamp(path), second);
  EXPECT_EQ(this->files.stamp(this->harness.folder()), std::nullopt);
}

TYPED_TEST_P(FilesContract, a_name_is_found_without_regard_to_capitals_but_the_exact_one_first) {
  this->harness.makeFolder(this->in("Maps"));
  const std::string inner = this->in("Maps") + pathSeparator + "BloodGulch.map";
  this->files.replace(inner, "map");
  EXPECT_EQ(this->files.find(this->in("maps") + pathSeparator + "bloodgulch.MAP"), inner);
  EXPECT_EQ(this->files.find(this->in("MAPS")), this->in("Maps"));
  this->files.replace(this->in("b.ini"), "small");
  this->files.replace(this->in("B.ini"), "large");
  EXPECT_EQ(this->files.find(this->in("b.ini")), this->in("b.ini"));
  EXPECT_EQ(this->files.find(this->in("B.ini")), this->in("B.ini"));
  EXPECT_EQ(this->files.find(this->in("c.ini")), std::nullopt);
  EXPECT_EQ(this->files.find(this->in("maps") + pathSeparator + "none.map"), std::nullopt);
}

TYPED_TEST_P(FilesContract, what_cannot_be_done_is_a_failure_by_its_number_and_changes_nothing) {
  Files& files = this->files;
  const std::string none = this->in("none.ini");
  const std::string folder = this->in("folder");
  const std::string held = this->in("held.ini");
  this->harness.makeFolder(folder);
  files.replace(held, "held");
  EXPECT_EQ(failureOf([&] { files.read(none); }), 53);
  EXPECT_EQ(failureOf([&] { files.remove(none); }), 53);
  EXPECT_EQ(failureOf([&] { files.rename(none, held); }), 53);
  EXPECT_EQ(failureOf([&] { files.read(folder); }), 75);
  EXPECT_EQ(failureOf([&] { files.remove(folder); }), 75);
  EXPECT_EQ(failureOf([&] { files.rename(held, folder); }), 75);
  EXPECT_EQ(failureOf([&] { files.replace(folder, "x"); }), 75);
  EXPECT_EQ(failureOf([&] { files.replace(this->in("missing") + pathSeparator + "x.ini", "x"); }), 76);
  EXPECT_EQ(files.read(held), "held");
  EXPECT_EQ(files.find(folder), folder);
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract,
                            a_file_holds_what_replaced_it_goes_when_removed_and_takes_a_new_name_over_another,
                            a_stamp_changes_with_the_file_and_only_then,
                            a_name_is_found_without_regard_to_capitals_but_the_exact_one_first,
                            what_cannot_be_done_is_a_failure_by_its_number_and_changes_nothing);

}  // namespace vantrel

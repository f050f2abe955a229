// What large files do, wherever they lie. A peer has `disk()`, `folder()`, an empty folder, and `content(path)`.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/BinaryFiles.h"
#include "platform/Failure.h"
#include "platform/Files.h"

namespace vantrel {

template <class Peer>
struct BinaryFilesContract : testing::Test, Peer {};

TYPED_TEST_SUITE_P(BinaryFilesContract);

TYPED_TEST_P(BinaryFilesContract, bytes_go_where_the_file_was_opened) {
  const std::string path = this->folder() + pathSeparator + "a.bin";
  const auto file = this->disk().openForBinary(path, 0);
  const std::string large(300000, 'l');
  file->write("one ");
  file->write(large);
  file->close();
  file->close();
  EXPECT_EQ(this->content(path), "one " + large);
  this->disk().openForBinary(path, 0)->write("two");
  EXPECT_EQ(this->content(path), "two " + large) << "the rest stays";
  this->disk().openForBinary(path, 4 + large.size())->write("end");
  EXPECT_EQ(this->content(path), "two " + large + "end");
}

TYPED_TEST_P(BinaryFilesContract, folders_are_made_with_their_parents) {
  const std::string folder = this->folder() + pathSeparator + "b" + pathSeparator + "c";
  const std::string path = folder + pathSeparator + "d.bin";
  EXPECT_THROW(
      try { this->disk().openForBinary(path, 0); } catch (const Failure& failure) {
        EXPECT_EQ(failure, failures::pathNotFound());
        throw;
      },
      Failure);
  EXPECT_TRUE(this->disk().makeSureDirectoryPathExists(folder + pathSeparator));
  EXPECT_TRUE(this->disk().makeSureDirectoryPathExists(folder + pathSeparator));
  this->disk().openForBinary(path, 0)->write("d");
  EXPECT_EQ(this->content(path), "d");
}

REGISTER_TYPED_TEST_SUITE_P(BinaryFilesContract, bytes_go_where_the_file_was_opened,
                            folders_are_made_with_their_parents);

}  // namespace vantrel

#include "desktop/pages/ProgressLine.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(ProgressLine, tells_how_many_were_asked_and_how_many_of_those_have_answered) {
  SweepProgress progress;
  const ProgressLine line(progress);
  EXPECT_EQ(line.text(), "");
  progress.listed.set(3);
  progress.walking.set(true);
  progress.noteQuery("192.0.2.1", 2302);
  progress.noteQuery("192.0.2.2", 2302);
  for (int i = 0; i < 2; ++i) {
    progress.noteReply("192.0.2.1", 2302);
    progress.noteReply("192.0.2.9", 2302);
  }
  EXPECT_EQ(line.text(), QString::fromUtf8("2/3 asked · 1 answered"));
  progress.walking.set(false);
  EXPECT_EQ(line.text(), QString::fromUtf8("2 asked · 1 answered"));
}

}  // namespace
}  // namespace vantrel

#include "desktop/adapters/ArrivalNesting.h"

#include <gtest/gtest.h>

#include "platform/Sockets.h"

namespace vantrel {
namespace {

struct ArrivalNestingTest : ::testing::Test {
  // Enters the handlers of a socket inside one another, as many as the gate lets in, and at the bottom does `inside`.
  int fill(ArrivalNesting::Gate& gate, const std::function<void()>& inside) {
    int depth = 0;
    const std::function<void()> deeper = [&] {
      ++depth;
      const ArrivalNesting::Wait wait(nesting);
      if (gate.isOpen()) {
        gate.run(deeper);
      } else {
        inside();
      }
    };
    gate.run(deeper);
    return depth;
  }

  ArrivalNesting nesting;
  ArrivalNesting::Gate replies{nesting, [] {}};
  ArrivalNesting::Gate list{nesting, [] {}};
};

TEST_F(ArrivalNestingTest, a_gate_closes_sixty_four_deep_and_opens_when_the_whole_run_has_come_down) {
  bool openedInside = false;
  EXPECT_EQ(fill(replies, [&] { EXPECT_FALSE(replies.isOpen()); }), maximumNesting);
  EXPECT_TRUE(replies.isOpen());
  replies.run([&] {
    const ArrivalNesting::Wait wait(nesting);
    fill(replies, [] {});
    openedInside = replies.isOpen();  // One handler of the run is still there.
  });
  EXPECT_FALSE(openedInside);
  EXPECT_TRUE(replies.isOpen());
}

TEST_F(ArrivalNestingTest, a_walk_on_top_of_a_full_run_still_hears_replies) {
  fill(replies, [&] {
    list.run([&] {
      EXPECT_TRUE(replies.isOpen());
      const ArrivalNesting::Wait walk(nesting);
      EXPECT_EQ(fill(replies, [] {}), maximumNesting);
      EXPECT_TRUE(replies.isOpen()) << "the second run has come down; the first is below the walk";
    });
    EXPECT_FALSE(replies.isOpen());
  });
}

TEST_F(ArrivalNestingTest, so_does_the_wait_of_a_timer_or_a_click_on_top_of_one) {
  fill(replies, [&] {
    {
      const ArrivalNesting::Wait passOfPings(nesting);
      EXPECT_TRUE(replies.isOpen());
    }
    EXPECT_FALSE(replies.isOpen());
  });
}

TEST_F(ArrivalNestingTest, all_runs_together_have_a_bound) {
  int depth = 0;
  const std::function<void()> alternate = [&] {
    ++depth;
    const ArrivalNesting::Wait wait(nesting);
    ArrivalNesting::Gate& next = depth % 2 == 0 ? replies : list;
    if (next.isOpen()) {
      next.run(alternate);
    }
  };
  replies.run(alternate);
  EXPECT_EQ(depth, ArrivalNesting::maximumDepth);
  EXPECT_TRUE(replies.isOpen() && list.isOpen());
}

}  // namespace
}  // namespace vantrel

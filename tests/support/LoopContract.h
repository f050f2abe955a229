// What every Loop promises, told against a harness with these members:
//   Loop& loop();        the loop, with nothing else to do
//   void beginEnding();  the program begins to end
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/Loop.h"

namespace vantrel {

// Waits until `done`, or fails the test after some seconds of the loop's own time.
template <class Done>
void waitUntil(Loop& loop, Done done) {
  for (int i = 0; i < 3000 && !done(); ++i) {
    loop.wait(1);
  }
  EXPECT_TRUE(done()) << "in vain";
}

template <class Harness>
struct LoopContract : testing::Test {
  std::uint64_t elapsed() { return loop.tickCount() - begin; }
  auto tells(const std::string& word) {
    return [this, word] { story += word; };
  }

  Harness harness;
  Loop& loop = harness.loop();
  std::uint64_t begin = loop.tickCount();
  std::string story;
};
TYPED_TEST_SUITE_P(LoopContract);

TYPED_TEST_P(LoopContract, an_outer_wait_returns_only_after_the_inner_one) {
  this->loop.startTimer(5, TimerKind::once, [&] {
    this->loop.startTimer(5, TimerKind::once, this->tells("innermost "));
    this->loop.wait(40);
    this->story += "inner ";
  });
  this->loop.wait(15);
  EXPECT_EQ(this->story, "innermost inner ");
  EXPECT_GE(this->elapsed(), 45u);
}

TYPED_TEST_P(LoopContract, timers_run_in_order_of_time_and_never_before_it_or_inside_startTimer) {
  for (const int milliseconds : {30, 0, 15}) {
    this->loop.startTimer(milliseconds, TimerKind::once, [&, milliseconds] {
      EXPECT_GE(this->elapsed(), static_cast<std::uint64_t>(milliseconds));
      this->story += std::to_string(milliseconds) + " ";
    });
    EXPECT_EQ(this->story, "");
  }
  waitUntil(this->loop, [&] {
    this->loop.wait(0);
    return this->story == "0 ";
  });
  this->loop.wait(80);
  EXPECT_GE(this->elapsed(), 80u);
  EXPECT_EQ(this->story, "0 15 30 ");
}

TYPED_TEST_P(LoopContract, a_repeating_timer_is_called_nested_in_its_own_wait_until_it_stops_itself_and_ends_its_call) {
  const auto kept = std::make_shared<TimerId>(0);
  *kept = this->loop.startTimer(5, TimerKind::repeating, [&story = this->story, &loop = this->loop, kept] {
    story += "<";
    if (story == "<") {
      waitUntil(loop, [&] { return story.size() > 4; });
    } else if (story.size() > 3) {
      loop.stopTimer(*kept);
    }
    story += ">";
  });
  EXPECT_NE(*kept, 0u);
  this->loop.wait(100);
  EXPECT_EQ(this->story, "<<><>>");
  EXPECT_EQ(kept.use_count(), 1);
}

TYPED_TEST_P(LoopContract, a_stopped_timer_is_not_called_though_it_was_due_and_strange_numbers_are_ignored) {
  TimerId second = 0;
  this->loop.startTimer(3, TimerKind::once, [&] { this->loop.stopTimer(second); });
  second = this->loop.startTimer(3, TimerKind::once, this->tells("called "));
  this->loop.stopTimer(0);
  this->loop.stopTimer(second + 100);
  this->loop.wait(30);
  EXPECT_EQ(this->story, "");
}

TYPED_TEST_P(LoopContract, no_wait_waits_any_more_once_the_program_is_ending) {
  EXPECT_FALSE(this->loop.ending());
  this->loop.startTimer(5, TimerKind::once, [&] {
    this->harness.beginEnding();
    this->loop.wait(5000);
    this->story += "inner ";
  });
  this->loop.wait(5000);
  EXPECT_EQ(this->story, "inner ");
  EXPECT_TRUE(this->loop.ending());
  this->loop.wait(5000);
  EXPECT_LT(this->elapsed(), 2000u);
}

TYPED_TEST_P(LoopContract, date_and_time_are_joined_by_a_dash) {
  const std::string now = this->loop.dateAndTime();
  const std::size_t dash = now.rfind('-');
  ASSERT_NE(dash, std::string::npos) << now;
  EXPECT_LT(now.find_first_of("0123456789"), dash) << now;
  EXPECT_NE(now.find_first_of("0123456789", dash), std::string::npos) << now;
}

REGISTER_TYPED_TEST_SUITE_P(LoopContract, an_outer_wait_returns_only_after_the_inner_one,
                            timers_run_in_order_of_time_and_never_before_it_or_inside_startTimer,
                            a_repeating_timer_is_called_nested_in_its_own_wait_until_it_stops_itself_and_ends_its_call,
                            a_stopped_timer_is_not_called_though_it_was_due_and_strange_numbers_are_ignored,
                            no_wait_waits_any_more_once_the_program_is_ending, date_and_time_are_joined_by_a_dash);

}  // namespace vantrel

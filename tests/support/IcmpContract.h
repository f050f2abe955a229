// What every Icmp promises, told against a harness with these members:
//   std::string missing();        what the machine lacks to tell it; empty when nothing
//   Loop& loop();
//   Icmp& icmp();
//   std::string answeringHost();  a dotted address that answers
//   std::string silentHost();     one that does not; the answering one may be silent from then on
//   void deny();                  this user is not permitted to send echoes any more
//   void beginEnding();           the program begins to end
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Icmp.h"
#include "support/LoopContract.h"

namespace vantrel {

template <class Harness>
struct IcmpContract : testing::Test {
  void SetUp() override {
    if (!harness.missing().empty()) {
      GTEST_SKIP() << harness.missing();
    }
  }
  EchoReply echo(const std::string& ip, int milliseconds) {
    const IcmpOpened opened = harness.icmp().open();
    EXPECT_EQ(opened.how, IcmpOpening::opened) << opened.explanation;
    return opened.handle ? opened.handle->sendEcho(ip, "E", milliseconds) : EchoReply{};
  }
  std::uint64_t elapsed() { return harness.loop().tickCount() - begin; }

  Harness harness;
  std::uint64_t begin = harness.loop().tickCount();
  std::string story;
};
TYPED_TEST_SUITE_P(IcmpContract);

TYPED_TEST_P(IcmpContract, a_host_that_answers_tells_its_round_trip_and_the_wait_ends_with_it) {
  const EchoReply reply = this->echo(this->harness.answeringHost(), 5000);
  EXPECT_EQ(reply.outcome, EchoOutcome::answered);
  EXPECT_GE(reply.milliseconds, 0);
  EXPECT_LE(static_cast<std::uint64_t>(reply.milliseconds), this->elapsed());
  EXPECT_LT(this->elapsed(), 1000u);
}

TYPED_TEST_P(IcmpContract, a_silent_host_is_no_answer_when_the_time_is_over_and_events_run_meanwhile) {
  const std::string silent = this->harness.silentHost();
  this->harness.loop().startTimer(20, TimerKind::once, [this] {
    EXPECT_LT(this->elapsed(), 250u);
    this->story += "event ";
  });
  const std::uint64_t sent = this->elapsed();
  EXPECT_EQ(this->echo(silent, 250), EchoReply{});
  EXPECT_GE(this->elapsed() - sent, 250u);
  EXPECT_EQ(this->story, "event ");
}

TYPED_TEST_P(IcmpContract, an_echo_in_an_event_of_anothers_wait_runs_to_its_end_inside) {
  const std::string silent = this->harness.silentHost();
  this->harness.loop().startTimer(10, TimerKind::once, [this, silent] {
    EXPECT_EQ(this->echo(silent, 60), EchoReply{});
    this->story += "inner ";
  });
  EXPECT_EQ(this->echo(silent, 30), EchoReply{});
  EXPECT_EQ(this->story, "inner ");
  EXPECT_GE(this->elapsed(), 70u);
}

TYPED_TEST_P(IcmpContract, what_is_no_dotted_address_is_told_apart_at_once_and_the_handle_still_serves) {
  const IcmpOpened opened = this->harness.icmp().open();
  ASSERT_EQ(opened.how, IcmpOpening::opened) << opened.explanation;
  for (const std::string& none : std::vector<std::string>{"",
                                                          "master.example.test",
                                                          "1.2.3",
                                                          "1.2.3.256",
                                                          "1.2.3.4.5",
                                                          " 1.2.3.4",
                                                          "1.2.3.4:5",
                                                          "::1",
                                                          {"1.2.3.4\0", 8}}) {
    EXPECT_EQ(opened.handle->sendEcho(none, "E", 5000).outcome, EchoOutcome::noAddress) << none;
  }
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(opened.handle->sendEcho(this->harness.answeringHost(), "E", 5000).outcome, EchoOutcome::answered);
  }
  EXPECT_LT(this->elapsed(), 1000u);
}

TYPED_TEST_P(IcmpContract, where_it_is_not_permitted_nothing_opens_and_two_lines_say_so) {
  this->harness.deny();
  const IcmpOpened opened = this->harness.icmp().open();
  EXPECT_EQ(opened.how, IcmpOpening::notPermitted);
  EXPECT_EQ(opened.handle, nullptr);
  EXPECT_EQ(std::count(opened.explanation.begin(), opened.explanation.end(), '\n'), 1) << opened.explanation;
}

TYPED_TEST_P(IcmpContract, the_programs_end_ends_the_wait_without_an_answer_and_no_echo_waits_after_it) {
  const std::string silent = this->harness.silentHost();
  this->harness.loop().startTimer(20, TimerKind::once, [this] { this->harness.beginEnding(); });
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(this->echo(silent, 5000), EchoReply{});
    EXPECT_LT(this->elapsed(), 2000u);
  }
}

REGISTER_TYPED_TEST_SUITE_P(IcmpContract, a_host_that_answers_tells_its_round_trip_and_the_wait_ends_with_it,
                            a_silent_host_is_no_answer_when_the_time_is_over_and_events_run_meanwhile,
                            an_echo_in_an_event_of_anothers_wait_runs_to_its_end_inside,
                            what_is_no_dotted_address_is_told_apart_at_once_and_the_handle_still_serves,
                            where_it_is_not_permitted_nothing_opens_and_two_lines_say_so,
                            the_programs_end_ends_the_wait_without_an_answer_and_no_echo_waits_after_it);

}  // namespace vantrel

// What every Dde promises, told against a harness with these members:
//   Dde& dde();
//   void runClient();                  a client runs from now on, and answers
//   void quitClient();                 it does not run any more
//   void hangClient();                 it runs and answers nothing
//   std::vector<std::string> taken();  the commands that it took, with their slash
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "platform/Dde.h"
#include "platform/Failure.h"

namespace vantrel {

template <class Harness>
struct DdeContract : testing::Test {
  // The number of the failure, 0 when there is none. No call lasts; a second allows for a slow machine.
  template <class Call>
  int failureOf(Call call) {
    const auto begin = std::chrono::steady_clock::now();
    int number = 0;
    try {
      call();
    } catch (const Failure& failure) {
      number = failure.number;
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(1000));
    return number;
  }
  int open(const std::string& topic = "mirc|command") {
    return failureOf([&] { harness.dde().open(topic); });
  }
  int poke(const std::string& text) {
    return failureOf([&] { harness.dde().poke("vantrel", text); });
  }

  Harness harness;
};
TYPED_TEST_SUITE_P(DdeContract);

TYPED_TEST_P(DdeContract, a_client_that_runs_takes_every_letter_of_a_command) {
  this->harness.runClient();
  const std::vector<std::string> commands = {
      "/msg #halo \x03"
      "2,0 I have joined Fr\xe4nzis \"Server\" \x80 -=]",
      "/me plays"};
  for (const std::string& command : commands) {
    EXPECT_EQ(this->open(), 0);
    EXPECT_EQ(this->poke(command), 0);
    this->harness.dde().close();
  }
  EXPECT_EQ(this->harness.taken(), commands);
}

TYPED_TEST_P(DdeContract, without_a_client_nothing_opens_until_one_comes_and_it_leads_to_no_other_topic) {
  EXPECT_EQ(this->open(), 282);
  EXPECT_EQ(this->poke("/me plays"), 293);
  this->harness.runClient();
  EXPECT_EQ(this->open("mirc|url"), 282);
  EXPECT_EQ(this->open(), 0);
  this->harness.dde().close();
  EXPECT_EQ(this->poke("/me plays"), 293);
}

TYPED_TEST_P(DdeContract, a_client_that_hangs_or_has_gone_takes_nothing_and_is_not_waited_for) {
  this->harness.hangClient();
  EXPECT_EQ(this->open(), 0);
  EXPECT_EQ(this->poke("/me waits"), 286);
  this->harness.quitClient();
  EXPECT_EQ(this->poke("/me waits"), 286);
  EXPECT_EQ(this->open(), 282);
  EXPECT_EQ(this->poke("/me waits"), 293);
}

REGISTER_TYPED_TEST_SUITE_P(DdeContract, a_client_that_runs_takes_every_letter_of_a_command,
                            without_a_client_nothing_opens_until_one_comes_and_it_leads_to_no_other_topic,
                            a_client_that_hangs_or_has_gone_takes_nothing_and_is_not_waited_for);

}  // namespace vantrel

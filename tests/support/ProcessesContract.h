// What every Processes promises, told against a harness with these members:
//   Processes& processes();
//   ProcessStart program();                 one that runs until it is ended
//   void end(const GameProcess& process);   ends it from outside
//   ProcessStart missing();                 a program that is not there
#pragma once

#include <set>

#include "platform/Processes.h"
#include "support/FilesContract.h"

namespace vantrel {

template <class Harness>
struct ProcessesContract : testing::Test {
  Harness harness;
  Processes& processes = harness.processes();
};
TYPED_TEST_SUITE_P(ProcessesContract);

TYPED_TEST_P(ProcessesContract, a_program_runs_until_it_ends_and_its_handles_mean_something_until_they_are_closed) {
  const GameProcess first = this->processes.start(this->harness.program());
  const GameProcess second = this->processes.start(this->harness.program());
  EXPECT_EQ((std::set{0u, first.process, first.thread, second.process, second.thread}.size()), 5u);
  EXPECT_EQ(this->processes.wait(first.process, 1), ProcessWait::timeOut);
  EXPECT_EQ(this->processes.wait(first.thread, 0), ProcessWait::failed);
  this->harness.end(first);
  EXPECT_EQ(this->processes.wait(first.process, 2000), ProcessWait::ended);
  this->processes.close(first.thread);
  EXPECT_EQ(this->processes.wait(first.process, 0), ProcessWait::ended);
  EXPECT_EQ(this->processes.wait(second.process, 0), ProcessWait::timeOut);
  this->processes.close(first.process);
  this->processes.close(first.process);
  EXPECT_EQ(this->processes.wait(first.process, 2000), ProcessWait::failed);
  this->harness.end(second);
}

TYPED_TEST_P(ProcessesContract, a_program_that_is_not_there_is_not_started) {
  const ProcessStart missing = this->harness.missing();
  EXPECT_EQ(failureOf([&] { this->processes.start(missing); }), 53);
}

REGISTER_TYPED_TEST_SUITE_P(ProcessesContract,
                            a_program_runs_until_it_ends_and_its_handles_mean_something_until_they_are_closed,
                            a_program_that_is_not_there_is_not_started);

}  // namespace vantrel

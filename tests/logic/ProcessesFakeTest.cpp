// The fake processes keep the contract that the real ones keep.
#include "support/FakeProcesses.h"
#include "support/ProcessesContract.h"

namespace vantrel {
namespace {

struct FakeProcessesHarness {
  Processes& processes() { return fake; }
  ProcessStart program() const { return {.application = "/games/halo/haloce.exe"}; }
  void end(const GameProcess& process) { fake.end(process.process); }
  ProcessStart missing() {
    fake.fails = failures::fileNotFound();
    return {};
  }

  FakeProcesses fake;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ProcessesContract, FakeProcessesHarness);

}  // namespace
}  // namespace vantrel

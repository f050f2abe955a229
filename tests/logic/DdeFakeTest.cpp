// The fake exchange of data keeps the contract that the real one keeps.
#include "support/DdeContract.h"
#include "support/FakeDde.h"

namespace vantrel {
namespace {

struct FakeDdeHarness {
  Dde& dde() { return fake; }
  void runClient() { fake.clientRuns = true; }
  void quitClient() { fake.clientRuns = false; }
  void hangClient() {
    runClient();
    fake.clientAnswers = false;
  }
  std::vector<std::string> taken() const {
    const std::string poke = "poke vantrel ";
    std::vector<std::string> texts;
    for (const std::string& line : fake.log) {
      if (line.starts_with(poke)) {
        texts.push_back(line.substr(poke.size()));
      }
    }
    return texts;
  }

  FakeDde fake;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, DdeContract, FakeDdeHarness);

}  // namespace
}  // namespace vantrel

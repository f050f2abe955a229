// The fake echoes keep the contract that the real ones keep.
#include "support/FakeIcmp.h"
#include "support/IcmpContract.h"

namespace vantrel {
namespace {

struct FakeIcmpHarness {
  std::string missing() const { return ""; }
  Loop& loop() { return virtualLoop; }
  Icmp& icmp() { return fake; }
  std::string answeringHost() {
    fake.roundTrips["192.0.2.1"] = 30;
    return "192.0.2.1";
  }
  std::string silentHost() const { return "192.0.2.2"; }
  void deny() { fake.denied = true; }
  void beginEnding() { virtualLoop.ends = true; }

  VirtualLoop virtualLoop;
  FakeNetwork network{virtualLoop};
  FakeIcmp fake{network};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, IcmpContract, FakeIcmpHarness);

}  // namespace
}  // namespace vantrel

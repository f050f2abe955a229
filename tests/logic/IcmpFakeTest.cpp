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

TEST(FakeIcmpTest, answers_as_late_as_scripted_and_keeps_a_log_in_virtual_time) {
  FakeIcmpHarness world;
  world.fake.roundTrips = {{"192.0.2.1", 30}, {"192.0.2.3", 251}};
  for (const auto& [ip, outcome, trip] :
       {std::tuple("192.0.2.1", EchoOutcome::answered, 30), std::tuple("192.0.2.2", EchoOutcome::unanswered, 0),
        std::tuple("192.0.2.3", EchoOutcome::unanswered, 0)}) {
    EXPECT_EQ(world.fake.open().handle->sendEcho(ip, "E", 250), (EchoReply{outcome, trip})) << ip;
  }
  EXPECT_EQ(world.network.log,
            (std::vector<std::string>{"0000 icmp open", "0000 192.0.2.1 echo > E", "0030 icmp close", "0030 icmp open",
                                      "0030 192.0.2.2 echo > E", "0280 icmp close", "0280 icmp open",
                                      "0280 192.0.2.3 echo > E", "0530 icmp close"}));
}

}  // namespace
}  // namespace vantrel

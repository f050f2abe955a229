#include "sandbox/WorldPlan.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "sandbox/CommandLine.h"
#include "sandbox/StatusReply.h"

namespace vantrel::sandbox {

TEST(WorldPlan, a_seed_makes_the_same_world_again_and_another_seed_another_one) {
  const auto worldOf = [](std::uint64_t seed) {
    WorldSettings settings;
    settings.seed = seed;
    std::string world;
    for (const GameServer& server : planServers(settings, wantedPorts(settings))) {
      world += server.endpoint.text() + statusReply(server) + std::to_string(server.latency.count()) + "\n";
    }
    return world;
  };
  EXPECT_EQ(worldOf(7), worldOf(7));
  EXPECT_NE(worldOf(7), worldOf(8));
}

TEST(CommandLine, a_wrong_number_and_an_address_of_another_machine_are_refused) {
  EXPECT_THROW(parseCommandLine({"--servers", "12x"}), std::invalid_argument);
  EXPECT_THROW(parseCommandLine({"--master", "192.0.2.1"}), std::invalid_argument);
}

}  // namespace vantrel::sandbox

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

TEST(WorldPlan, shares_are_met_exactly_and_names_use_every_character_that_a_reply_can_carry) {
  WorldSettings settings;
  settings.servers = 2000;
  std::map<std::string, int> counts;
  std::set<std::uint32_t> addresses;
  std::set<char> characters;
  for (const GameServer& server : planServers(settings, wantedPorts(settings))) {
    counts["silent"] += server.behaviour == Behaviour::Silent;
    counts["closed"] += server.behaviour == Behaviour::Closed;
    counts["locked"] += server.locked;
    counts["full"] += server.players.size() == server.maxPlayers;
    counts["empty"] += server.players.empty();
    addresses.insert(server.endpoint.address);
    EXPECT_EQ(server.endpoint.address >> 20, 127u << 4 | 1) << server.endpoint.text();
    characters.insert(server.hostname.begin(), server.hostname.end());
  }
  EXPECT_EQ(counts, (std::map<std::string, int>{
                        {"silent", 100}, {"closed", 30}, {"locked", 200}, {"full", 300}, {"empty", 500}}));
  EXPECT_EQ(addresses.size(), settings.servers);
  EXPECT_EQ(characters.size(), 254u) << "all but the backslash and the NUL";
}

TEST(CommandLine, a_wrong_number_and_an_address_of_another_machine_are_refused) {
  EXPECT_THROW(parseCommandLine({"--servers", "12x"}), std::invalid_argument);
  EXPECT_THROW(parseCommandLine({"--master", "192.0.2.1"}), std::invalid_argument);
}

}  // namespace vantrel::sandbox

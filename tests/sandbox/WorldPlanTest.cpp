#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "sandbox/CommandLine.h"
#include "sandbox/StatusReply.h"
#include "sandbox/Validation.h"
#include "sandbox/WorldPlan.h"

namespace vantrel::sandbox {
namespace {

std::vector<std::string> repliesOf(std::uint64_t seed) {
  WorldSettings settings;
  settings.seed = seed;
  std::vector<std::string> replies;
  for (const GameServer& server : planServers(settings, wantedPorts(settings))) {
    replies.push_back(server.endpoint.text() + statusReply(server) + std::to_string(server.latency.count()));
  }
  return replies;
}

bool isMostlyLetters(const std::string& name) {
  const auto isPlain = [](unsigned char byte) { return byte == ' ' || (byte < 0x80 && std::isalnum(byte) != 0); };
  const bool hasControl = std::ranges::any_of(name, [](unsigned char byte) { return byte < ' '; });
  return !hasControl && std::ranges::count_if(name, isPlain) * 3 >= static_cast<std::ptrdiff_t>(name.size()) * 2;
}

TEST(WorldPlan, a_seed_makes_the_same_world_again_and_another_seed_another_one) {
  EXPECT_EQ(repliesOf(7), repliesOf(7));
  EXPECT_NE(repliesOf(7), repliesOf(8));
}

TEST(WorldPlan, shares_are_met_exactly_and_all_fillings_occur) {
  const WorldSettings settings;
  std::map<std::string, int> fillings;
  std::map<Behaviour, int> behaviours;
  std::set<std::uint32_t> addresses;
  int locked = 0;
  for (const GameServer& server : planServers(settings, wantedPorts(settings))) {
    ++fillings[std::to_string(server.players.size()) + "/" + std::to_string(server.maxPlayers)];
    ++behaviours[server.behaviour];
    addresses.insert(server.endpoint.address);
    locked += server.locked;
    EXPECT_EQ(server.endpoint.address >> 20, 127u << 4 | 1) << server.endpoint.text();
    EXPECT_LE(server.players.size(), server.maxPlayers);
  }
  EXPECT_EQ(behaviours,
            (std::map<Behaviour, int>{{Behaviour::Answers, 187}, {Behaviour::Silent, 10}, {Behaviour::Closed, 3}}));
  EXPECT_EQ(locked, 20);
  EXPECT_EQ(addresses.size(), settings.servers);
  for (const char* filling : {"16/16", "0/16", "8/8", "0/8"}) {
    EXPECT_GT(fillings[filling], 0) << filling;
  }
}

TEST(WorldPlan, names_use_the_whole_code_page_and_most_of_them_are_pleasant) {
  WorldSettings settings;
  settings.servers = 2000;
  std::set<char> characters;
  int pleasant = 0;
  int padded = 0;
  int doubled = 0;
  for (const GameServer& server : planServers(settings, wantedPorts(settings))) {
    const std::string& name = server.hostname;
    ASSERT_FALSE(name.empty());
    const bool isPadded = name.front() == ' ' || name.back() == ' ';
    const bool isDoubled = name.find("  ") != std::string::npos;
    padded += isPadded;
    doubled += isDoubled;
    pleasant += !isPadded && !isDoubled && isMostlyLetters(name);
    characters.insert(name.begin(), name.end());
    for (const Player& player : server.players) {
      ASSERT_FALSE(player.name.empty());
      characters.insert(player.name.begin(), player.name.end());
    }
  }
  EXPECT_FALSE(characters.contains('\\') || characters.contains('\0'));
  EXPECT_EQ(characters.size(), 254u);
  EXPECT_GT(pleasant, 1600);
  EXPECT_GT(padded, 20);
  EXPECT_GT(doubled, 20);
}

TEST(StatusReply, keys_come_in_the_order_that_clients_rely_on) {
  GameServer server;
  server.endpoint.port = 2303;
  server.hostname = " Old  Kiln ";
  server.version = "1.09";
  server.mapName = "mirewood";
  server.gameType = server.gameVariant = "CTF";
  server.locked = server.teamPlay = true;
  server.fragLimit = 3;
  server.playerFlags = 71;
  server.vehicleFlags = 404;
  server.players = {{"Ann", 2, 40, 0}, {"[B] b", 1, 90, 1}};
  server.teamScores = {2, 1};
  EXPECT_EQ(statusReply(server),
            "\\hostname\\ Old  Kiln \\gamever\\1.09\\hostport\\2303\\maxplayers\\16\\password\\1\\mapname\\mirewood"
            "\\dedicated\\1\\gamemode\\openplaying\\game_classic\\0\\numplayers\\2\\gametype\\CTF\\teamplay\\1"
            "\\gamevariant\\CTF\\fraglimit\\3\\player_flags\\71,404\\game_flags\\0\\player_0\\Ann\\player_1\\[B] b"
            "\\score_0\\2\\score_1\\1\\ping_0\\40\\ping_1\\90\\team_0\\0\\team_1\\1"
            "\\team_t0\\Red\\team_t1\\Blue\\score_t0\\2\\score_t1\\1");
}

TEST(Validation, challenges_give_strings_worked_out_apart_from_this_program) {
  const std::map<std::string, std::string> stringByChallenge = {{"abcdef", "NSYXE86L"}, {"abcdefgh", "NSYXE86L"},
                                                                {"QW9$z~", "gzxcfGc7"}, {"TkaPth", "iSuCdD/U"},
                                                                {"7V012g", "w5mS/siJ"}, {"abcde", ""}};
  for (const auto& [challenge, expected] : stringByChallenge) {
    EXPECT_EQ(validationString(challenge, "k7Wm2Q"), expected) << challenge;
  }
}

TEST(CommandLine, wrong_arguments_are_refused) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"--sead", "1"},
                                             {"--seed"},
                                             {"--servers", "-1"},
                                             {"--servers", "12x"},
                                             {"--loss", "1.5"},
                                             {"--loss", "nan"},
                                             {"--latency", "80-20"},
                                             {"--port", "70000"},
                                             {"--master", "192.0.2.1"},
                                             {"--master", "127.0.0.1:"},
                                             {"--silent", "0.7", "--closed", "0.7"},
                                             {"--for", "-1"}}) {
    EXPECT_THROW(parseCommandLine(arguments), std::invalid_argument) << arguments[0] << " " << arguments.back();
  }
}

TEST(CommandLine, arguments_reach_the_settings) {
  const CommandLine line =
      parseCommandLine({"--latency", "5-60", "--master", "127.0.0.9:7", "--for", "1.5", "--log", "-", "--table"});
  EXPECT_EQ(line.settings.latencyLow.count(), 5);
  EXPECT_EQ(line.settings.latencyHigh.count(), 60);
  EXPECT_EQ(line.settings.masterAddress + ":" + std::to_string(line.settings.masterPort), "127.0.0.9:7");
  EXPECT_EQ(line.duration, std::chrono::milliseconds(1500));
  EXPECT_EQ(line.logFile, "-");
  EXPECT_TRUE(line.showsTable && !line.showsHelp);
}

}  // namespace
}  // namespace vantrel::sandbox

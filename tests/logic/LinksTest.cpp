// Links: what each asks for, and how the program comes to be the one that opens them.

#include <gtest/gtest.h>

#include "links/modUrlEncode.h"
#include "support/World.h"

namespace vantrel {
namespace {

struct LinksTest : testing::Test, World {
  LinksTest() {
    commands.add(command::getServerList, [this] { did += "sweep "; });
    commands.add(command::launchGame, [this] { did += "launch "; });
    commands.add(command::queryServer, [this] { did += "query "; });
  }
  // The notices, the commands and the address that a link leads to.
  std::string act(const std::string& link) {
    did.clear();
    mainWindow.lblData.caption.set("[...]");
    mainWindow.txtIP.text.set("");
    mainWindow.txtPort.text.set("");
    links.handleLink(link);
    const std::string address = mainWindow.txtIP.text.get() + "|" + mainWindow.txtPort.text.get();
    return notices.told() + "; " + did + address;
  }

  std::string did;
};

TEST_F(LinksTest, the_first_mark_in_the_order_of_marks_decides) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "; |"},
      {"halo://", "; |"},
      {"halo://192.0.2.1:2302/", "; query 192.0.2.1|2302"},
      {"\"halo://192.0.2.1:2302/join\"", "Joining Halo CE server 192.0.2.1:2302; launch 192.0.2.1|2302"},
      {"halo://192.0.2.1/join", "Joining Halo CE server 192.0.2.1; launch 192.0.2.1|"},
      {"halo://player/a/join", "Vantrel CE is loading up to search for this player online.; sweep |"},
      {"halo://player/", "Invalid player name.; |"},
      {"halo://map/", "Invalid map name.; |"},
      {"halo://buddy/", "Invalid player name:; |"},
      {"halo://MAP/x", "; query MAPx|"},
      {"some words", "; query some words|"},
  };
  for (const auto& [link, outcome] : cases) {
    EXPECT_EQ(act(link), outcome) << link;
  }
}

TEST_F(LinksTest, names_lead_to_their_windows) {
  act("halo://player/A%20b%41/");
  EXPECT_EQ(mainWindow.txtPlayer.text.get(), "A b%41/");
  EXPECT_TRUE(players.visible.get());
  act("halo://buddy/A%20b");
  EXPECT_EQ(buddies.myFaves1.at(1).name, "A%20b");
  EXPECT_FALSE(buddies.visible.get());
  EXPECT_EQ(act("halo://map/map/Lake"),
            "Attempting to download map LAKE\nVantrel CE is loading up to find this map in the mirror list.; |");
  EXPECT_EQ(mirror.lblMap.caption.get(), "lake");
  EXPECT_TRUE(mirror.visible.get());
}

TEST_F(LinksTest, a_joined_server_minimises_the_window_and_a_queried_one_is_told) {
  act("halo://192.0.2.1:2302/join");
  EXPECT_EQ(mainWindow.windowState.get(), WindowState::minimized);
  commands.add(command::queryServer, [this] { mainWindow.lblData.caption.set("Fun"); });
  EXPECT_EQ(act("halo://192.0.2.1:2302"), "Fun; 192.0.2.1|2302");
}

// Whoever writes a link must get no more of the game than a server's address.
TEST(HostileLinks, no_link_adds_a_switch_to_the_game) {
  const std::string links[] = {
      "halo://192.0.2.1:2302 -exec evil/join",
      "halo://192.0.2.1:2302\t-exec evil/join",
      "halo://192.0.2.1 -exec evil:2302/join",
      "halo://192.0.2.1:2302:-exec evil/join",
      "halo://192.0.2.1: 2302/join",
      "\"halo://192.0.2.1:2302\" \"-exec\"/join",
      "halo://-exec evil:2302/join",
      "halo://192.0.2.1:\n2302/join",
      "halo://192.0.2.1:2302/join" + std::string(1 << 20, ' ') + "-exec",
      "halo://" + std::string(1 << 20, '1') + ":2302/join",
  };
  for (const std::string& link : links) {
    World world;
    world.mainWindow.txtHaloPath.text.set("/games/halo");
    world.network.servers["192.0.2.1:2302"].answers.push_back({statusReply("Fun"), 10});
    world.links.handleLink(link);
    world.loop.wait(5000);
    for (const ProcessStart& start : world.processes.starts) {
      EXPECT_EQ(start.commandLine, "       -connect 192.0.2.1:2302") << link.substr(0, 60);
    }
    EXPECT_EQ(world.processes.starts.size(),
              link.starts_with("halo://192.0.2.1:2302:") || link.ends_with(": 2302/join") ? 1U : 0U)
        << link.substr(0, 60);
  }
}

TEST_F(LinksTest, the_scheme_comes_back_to_the_program_whoever_has_taken_it) {
  const std::string claimed = "The halo:// protocol has been associated with Vantrel CE.";
  const auto start = [this] {
    protocol.registerProtocolHandler("");
    return notices.told();
  };
  const auto value = [this](const std::string& key, const std::string& name) {
    return registry.read(RegistryRoot::classesRoot, key, name).value_or("none");
  };
  EXPECT_EQ(start(), claimed);
  EXPECT_EQ(value("halo", "") + "|" + value("halo", "URL Protocol"), "URL: halo Protocol|");
  EXPECT_EQ(value("halo\\shell\\open\\command", ""), "\"/PROGRAMS/VANTREL-CE\" \"%1\"");
  EXPECT_EQ(start(), "");
  schemes.owner = "other";
  EXPECT_EQ(start(), claimed);
  EXPECT_EQ(schemes.owner, "mine");
  registry.write(RegistryRoot::classesRoot, "halo\\shell\\open\\command", "", RegistryType::text, "x");
  EXPECT_EQ(start(), claimed);
  EXPECT_TRUE(protocol.protocolIsMine("halo: "));
  schemes.refuses = true;
  schemes.owner = "other";
  protocol.registerProtocolHandler("halo://map/");
  EXPECT_EQ(notices.told(), claimed + "\nInvalid map name.") << "the link is acted on all the same";
}

TEST(ModUrlEncode, only_blanks_travel_in_disguise) {
  const std::pair<std::string, std::string> encoded[] = {
      {"a b", "a%20b"}, {" a ", "%20a%20"}, {"a%b&\"", "a%b&\""}, {"x %SERVER_NAME", ""}, {"", ""}};
  for (const auto& [text, wanted] : encoded) {
    std::string argument = text;
    EXPECT_EQ(URLEncode(argument), wanted);
    EXPECT_EQ(argument, wanted.empty() ? text : wanted);
  }
  std::string argument = "%20a%20b%41%20";
  EXPECT_EQ(URLDecode(argument), "a b%41");
  EXPECT_EQ(argument, "a b%41");
}

}  // namespace
}  // namespace vantrel

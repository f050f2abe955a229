#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <system_error>

#include "Clients.h"
#include "sandbox/Flood.h"

namespace vantrel::sandbox {
namespace {

using Clock = std::chrono::steady_clock;

TEST(GameServers, both_queries_get_the_planned_reply_from_the_address_they_were_sent_to) {
  SandboxWorld world(quickWorld(40));
  world.start();
  UdpClient client;
  for (const GameServer& server : world.servers()) {
    for (const char* query : {"\\status", "\\"}) {
      client.send(query, server.endpoint);
      ASSERT_EQ(client.receive(), world.replyOf(server));
      EXPECT_EQ(client.source, server.endpoint) << client.source.text();
    }
  }
}

TEST(GameServers, anything_but_the_two_queries_to_a_known_address_is_logged_and_not_answered) {
  SandboxWorld world(quickWorld(2));
  world.start();
  const Endpoint server = world.servers()[0].endpoint;
  UdpClient client;
  for (const char* text : {"", "status", "\\status\\", "\\Status", "\\\\", "\\info"}) {
    client.send(text, server);
  }
  client.send("\\status", {server.address ^ 1u << 23, server.port});
  client.send("\\status", server);
  EXPECT_EQ(client.receive(), world.replyOf(world.servers()[0]));
  EXPECT_EQ(client.source, server);
  EXPECT_EQ(client.receive(kShort), "nothing");
  const auto entries = world.log().entries();
  ASSERT_EQ(world.log().count(LogEvent::QueryReceived), 8u);
  EXPECT_EQ(entries[5].text, "\\info");
  EXPECT_EQ(entries[7].from, localEndpoint(client.socket).text());
  EXPECT_EQ(lineOf({500, LogEvent::QueryReceived, "", "127.16.0.9:2302", "\\status\x02"}),
            "0500 127.16.0.9:2302 < \\status\xE2\x90\x82");
}

TEST(GameServers, a_closed_server_refuses_and_a_silent_one_does_not) {
  WorldSettings settings = quickWorld(10);
  settings.closedShare = 0.5;
  settings.silentShare = 0.5;
  SandboxWorld world(settings);
  world.start();
  for (const GameServer& server : world.servers()) {
    UdpClient client;
    sockaddr_in address = socketAddress(server.endpoint);
    ASSERT_EQ(connect(client.socket.number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::send(client.socket.number(), "\\", 1, 0), 1);
    const bool isClosed = server.behaviour == Behaviour::Closed;
    EXPECT_EQ(client.receive(isClosed ? kPatience : kShort / 10), isClosed ? "failed" : "nothing");
  }
}

TEST(GameServers, replies_come_after_the_servers_latency_and_in_its_order) {
  WorldSettings settings = quickWorld(60);
  settings.latencyHigh = std::chrono::milliseconds(90);
  SandboxWorld world(settings);
  world.start();
  UdpClient client;
  std::map<std::uint32_t, const GameServer*> serverByAddress;
  const auto start = Clock::now();
  for (const GameServer& server : world.servers()) {
    serverByAddress[server.endpoint.address] = &server;
    client.send("\\status", server.endpoint);
  }
  const auto sending = Clock::now() - start;
  std::chrono::milliseconds longest{0};
  for (std::size_t i = 0; i < settings.servers; ++i) {
    ASSERT_NE(client.receive(), "nothing");
    const auto latency = serverByAddress.at(client.source.address)->latency;
    EXPECT_GE(Clock::now() - start, latency);
    // Two servers may change places only by as much as the time that the queries themselves took.
    EXPECT_GE(latency + std::chrono::milliseconds(20) + sending, longest) << client.source.text();
    longest = std::max(longest, latency);
  }
  EXPECT_GT(longest.count(), 70);
}

TEST(GameServers, queries_and_replies_are_lost_as_often_as_was_asked_for_and_the_log_tells_which) {
  WorldSettings settings = quickWorld(400);
  settings.loss = 0.5;
  SandboxWorld world(settings);
  world.start();
  UdpClient client;
  for (const GameServer& server : world.servers()) {
    client.send("\\status", server.endpoint);
  }
  const auto count = [&](LogEvent event) { return world.log().count(event); };
  const auto deadline = Clock::now() + std::chrono::milliseconds(kPatience);
  std::size_t replies = 0;
  while (Clock::now() < deadline &&
         (count(LogEvent::QueryReceived) + count(LogEvent::QueryLost) < 400 ||
          count(LogEvent::ReplySent) + count(LogEvent::ReplyLost) < count(LogEvent::QueryReceived) ||
          replies < count(LogEvent::ReplySent))) {
    replies += client.receive(10) != "nothing";
  }
  EXPECT_EQ(replies, count(LogEvent::ReplySent));
  EXPECT_EQ(count(LogEvent::QueryReceived) + count(LogEvent::QueryLost), 400u);
  EXPECT_NEAR(static_cast<double>(count(LogEvent::QueryLost)), 200, 40);
  EXPECT_NEAR(static_cast<double>(replies), 100, 35);
}

TEST(GameServers, a_taken_port_is_named_and_the_world_can_start_once_it_is_free) {
  WorldSettings settings = quickWorld(5);
  const Descriptor takenUdp = openUdp({INADDR_ANY, 0});
  auto takenTcp = std::make_unique<Descriptor>(openListener({INADDR_LOOPBACK, 0}));
  const auto failureOfStart = [](SandboxWorld& world) -> std::string {
    try {
      world.start();
      return "started";
    } catch (const std::system_error& problem) {
      return problem.what();
    }
  };
  settings.gamePort = localEndpoint(takenUdp).port;
  SandboxWorld withoutGames(settings);
  EXPECT_EQ(failureOfStart(withoutGames),
            "UDP port " + std::to_string(settings.gamePort) + " at 0.0.0.0 cannot be used: Address already in use");
  settings.gamePort = 0;
  settings.masterPort = localEndpoint(*takenTcp).port;
  SandboxWorld world(settings);
  EXPECT_EQ(failureOfStart(world),
            "TCP port " + std::to_string(settings.masterPort) + " at 127.0.0.1 cannot be used: Address already in use");
  takenTcp.reset();
  EXPECT_EQ(failureOfStart(world), "started");
  EXPECT_NE(MasterClient(world).receive(), "");
}

TEST(Flood, valid_replies_and_garbage_reach_the_target) {
  UdpClient target;
  const UdpClient source;
  const Endpoint end = localEndpoint(target.socket);
  EXPECT_EQ(sendFlood(source.socket.number(), end.ip(), end.port, 64), 64u);
  int valid = 0;
  int received = 0;
  for (std::string text = target.receive(); text != "nothing"; text = target.receive(kShort)) {
    ++received;
    valid += text.starts_with("\\hostname\\") && text.find("\\game_flags\\") != std::string::npos;
  }
  EXPECT_EQ(received, 64);
  EXPECT_GE(valid, 32);
  EXPECT_LE(valid, 45) << "hardly any garbage";
  EXPECT_THROW(sendFlood(source.socket.number(), "192.0.2.1", 1, 1), std::invalid_argument);
}

}  // namespace
}  // namespace vantrel::sandbox

#include <gtest/gtest.h>

#include <algorithm>
#include <system_error>

#include "Clients.h"

namespace vantrel::sandbox {

using Clock = std::chrono::steady_clock;

TEST(GameServers, both_queries_get_the_planned_reply_from_the_address_they_were_sent_to) {
  RunningWorld world(quickWorld(40));
  Client client;
  for (const GameServer& server : world.servers()) {
    for (const char* query : {"\\status", "\\"}) {
      client.sendTo(server.endpoint, query);
      ASSERT_EQ(client.receive(), world.replyOf(server));
      EXPECT_EQ(client.source, server.endpoint) << client.source.text();
    }
  }
}

TEST(GameServers, anything_but_the_two_queries_to_a_known_address_is_logged_and_not_answered) {
  RunningWorld world(quickWorld(2));
  const Endpoint server = world.servers()[0].endpoint;
  Client client;
  for (const char* text : {"", "status", "\\status\\", "\\Status", "\\\\", "\\info"}) {
    client.sendTo(server, text);
  }
  client.sendTo({server.address ^ 1u << 23, server.port}, "\\status");
  client.sendTo(server, "\\status");
  EXPECT_EQ(client.receive(), world.replyOf(world.servers()[0]));
  EXPECT_EQ(client.receive(kShort), "nothing");
  EXPECT_EQ(world.log().count(LogEvent::QueryReceived), 8u);
}

TEST(GameServers, a_closed_server_refuses_and_a_silent_one_does_not) {
  WorldSettings settings = quickWorld(10);
  settings.closedShare = settings.silentShare = 0.5;
  RunningWorld world(settings);
  for (const GameServer& server : world.servers()) {
    Client client(SOCK_DGRAM, server.endpoint);
    client.send("\\");
    const bool isClosed = server.behaviour == Behaviour::Closed;
    EXPECT_EQ(client.receive(isClosed ? kPatience : kShort), isClosed ? "failed" : "nothing");
  }
}

TEST(GameServers, replies_come_after_the_servers_latency_and_in_its_order) {
  WorldSettings settings = quickWorld(60);
  settings.latencyHigh = std::chrono::milliseconds(90);
  RunningWorld world(settings);
  Client client;
  const auto start = Clock::now();
  for (const GameServer& server : world.servers()) {
    client.sendTo(server.endpoint, "\\status");
  }
  const auto sending = Clock::now() - start;
  std::chrono::milliseconds longest{0};
  for (std::size_t i = 0; i < settings.servers; ++i) {
    ASSERT_NE(client.receive(), "nothing");
    const auto latency = std::ranges::find(world.servers(), client.source, &GameServer::endpoint)->latency;
    EXPECT_GE(Clock::now() - start, latency);
    EXPECT_GE(latency + std::chrono::milliseconds(40) + sending, longest) << client.source.text();
    longest = std::max(longest, latency);
  }
  EXPECT_GT(longest.count(), 70);
}

TEST(GameServers, queries_and_replies_are_lost_as_often_as_was_asked_for_and_the_log_tells_which) {
  WorldSettings settings = quickWorld(400);
  settings.loss = 0.5;
  RunningWorld world(settings);
  Client client;
  for (const GameServer& server : world.servers()) {
    client.sendTo(server.endpoint, "\\status");
  }
  const auto lost = [&](LogEvent event) { return static_cast<int>(world.log().count(event)); };
  int replies = 0;
  for (int turn = 0; turn < 600 && replies + lost(LogEvent::QueryLost) + lost(LogEvent::ReplyLost) < 400; ++turn) {
    replies += client.receive(10) != "nothing";
  }
  EXPECT_EQ(replies + lost(LogEvent::QueryLost) + lost(LogEvent::ReplyLost), 400);
  EXPECT_NEAR(lost(LogEvent::QueryLost), 200, 40);
  EXPECT_NEAR(replies, 100, 35);
}

}  // namespace vantrel::sandbox

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

}  // namespace vantrel::sandbox

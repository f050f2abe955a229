#include <gtest/gtest.h>

#include <algorithm>

#include "Clients.h"
#include "sandbox/Validation.h"

namespace vantrel::sandbox {
namespace {

constexpr std::size_t kGreetingLength = 21;

std::string messageFor(const std::string& greeting) {
  return "\\basic\\gamename\\halom\\location\\0\\validate\\" + validationString(greeting.substr(15), "k7Wm2Q") +
         "\\final\\queryid\\1.1\\\\list\\cmp\\gamename\\halom\\final\\";
}

std::string listOf(const SandboxWorld& world) {
  std::string list;
  for (const GameServer& server : world.servers()) {
    const auto [address, port] = server.endpoint;
    for (const unsigned byte : {address >> 24, address >> 16, address >> 8, address, port / 256u, port + 0u}) {
      list += static_cast<char>(byte & 0xFF);
    }
  }
  return list + "\\final\\";
}

struct MasterClient : Client {
  explicit MasterClient(const SandboxWorld& world)
      : Client(SOCK_STREAM, loopbackEndpoint(world.masterAddress(), world.masterPort())) {}
};

TEST(MasterServer, a_right_message_gets_the_list_in_chunks_or_whole_and_the_connection_stays_open) {
  for (const std::size_t chunkBytes : {0u, 7u}) {
    WorldSettings settings = quickWorld(50);
    settings.listChunkBytes = chunkBytes;
    settings.listChunkPause = std::chrono::milliseconds(5);
    RunningWorld world(settings);
    MasterClient client(world);
    const std::string greeting = client.receiveBytes(kGreetingLength);
    const std::string message = messageFor(greeting);
    client.send(message.substr(0, 50));
    EXPECT_EQ(client.receive(kShort), "nothing");
    client.send(message.substr(50));
    const std::string list = listOf(world);
    const std::string start = client.receive();
    EXPECT_EQ(start.size() < list.size(), chunkBytes != 0);
    EXPECT_EQ(start + (chunkBytes != 0 ? client.receiveBytes(list.size() - start.size()) : ""), list);
    EXPECT_EQ(client.receive(kShort), "nothing");
    EXPECT_NE(MasterClient(world).receiveBytes(kGreetingLength), greeting);
  }
}

TEST(MasterServer, a_message_wrong_in_one_place_ends_the_conversation) {
  RunningWorld world(quickWorld(5));
  for (const std::size_t place : {0u, 17u, 32u, 43u, 80u, 1000u}) {
    MasterClient client(world);
    std::string message = messageFor(client.receiveBytes(kGreetingLength));
    client.send(message.replace(std::min(place, message.size()), 1, "_"));
    EXPECT_EQ(client.receive(), "") << place;
  }
}

}  // namespace
}  // namespace vantrel::sandbox

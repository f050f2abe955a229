#include <gtest/gtest.h>

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
    for (const unsigned byte :
         {server.endpoint.address >> 24, server.endpoint.address >> 16, server.endpoint.address >> 8,
          server.endpoint.address, unsigned{server.endpoint.port} >> 8, unsigned{server.endpoint.port}}) {
      list += static_cast<char>(byte & 0xFF);
    }
  }
  return list + "\\final\\";
}

TEST(MasterServer, a_right_message_gets_the_list_and_the_connection_stays_open) {
  SandboxWorld world(quickWorld(50));
  world.start();
  MasterClient client(world);
  const std::string greeting = client.receiveBytes(kGreetingLength);
  EXPECT_EQ(greeting.rfind("\\basic\\\\secure\\", 0), 0u);
  EXPECT_EQ(greeting.find('\\', 15), std::string::npos);
  const std::string message = messageFor(greeting);
  client.send(message.substr(0, 50));
  EXPECT_EQ(client.receive(kShort), "nothing");
  client.send(message.substr(50));
  EXPECT_EQ(client.receiveBytes(listOf(world).size()), listOf(world));
  EXPECT_EQ(client.receive(kShort), "nothing");
  MasterClient second(world);
  EXPECT_NE(second.receiveBytes(kGreetingLength), greeting);
}

TEST(MasterServer, a_message_wrong_in_one_place_ends_the_conversation) {
  const std::pair<const char*, const char*> changes[] = {{"\\\\list", "\\list"},
                                                         {"halom", "Halom"},
                                                         {"location\\0", "location\\1"},
                                                         {"\\final\\queryid", "_\\final\\queryid"},
                                                         {"validate\\", "validate\\A"}};
  SandboxWorld world(quickWorld(5));
  world.start();
  for (const auto& [part, replacement] : changes) {
    MasterClient client(world);
    std::string message = messageFor(client.receiveBytes(kGreetingLength));
    message.replace(message.find(part), std::string(part).size(), replacement);
    client.send(message);
    EXPECT_EQ(client.receive(), "") << replacement;
  }
  MasterClient tooLong(world);
  tooLong.send(messageFor(tooLong.receiveBytes(kGreetingLength)) + "\n");
  EXPECT_EQ(tooLong.receive(), "");
}

TEST(MasterServer, a_list_cut_into_chunks_comes_whole_in_many_arrivals) {
  WorldSettings settings = quickWorld(20);
  settings.listChunkBytes = 7;
  settings.listChunkPause = std::chrono::milliseconds(1);
  SandboxWorld world(settings);
  world.start();
  MasterClient client(world);
  client.send(messageFor(client.receiveBytes(kGreetingLength)));
  client.arrivals = 0;
  EXPECT_EQ(client.receiveBytes(listOf(world).size()), listOf(world));
  EXPECT_GT(client.arrivals, 3);
}

TEST(MasterServer, faults_of_the_greeting_can_be_switched_while_it_runs) {
  SandboxWorld world(quickWorld(5));
  world.start();
  const auto firstArrival = [&](FaultKind kind) {
    world.setMasterFault({kind});
    MasterClient client(world);
    return client.receive(kind == FaultKind::NeverAnswer ? kShort : kPatience);
  };
  EXPECT_EQ(firstArrival(FaultKind::CloseAfterAccept), "");
  EXPECT_EQ(firstArrival(FaultKind::ResetAfterAccept), "reset");
  EXPECT_EQ(firstArrival(FaultKind::NeverAnswer), "nothing");
  EXPECT_EQ(firstArrival(FaultKind::NoChallenge), "\\basic\\\\secure\\");
  EXPECT_EQ(firstArrival(FaultKind::GarbageGreeting).rfind("\\basic", 0), std::string::npos);
  EXPECT_EQ(firstArrival(FaultKind::None).size(), kGreetingLength);
}

TEST(MasterServer, a_message_without_a_challenge_to_answer_is_wrong) {
  SandboxWorld world(quickWorld(5));
  world.setMasterFault({FaultKind::NoChallenge});
  world.start();
  MasterClient client(world);
  client.send(messageFor(client.receiveBytes(15)));
  EXPECT_EQ(client.receive(), "");
}

TEST(MasterServer, faults_of_the_list_can_be_switched_in_the_middle_of_a_conversation) {
  SandboxWorld world(quickWorld(30));
  world.start();
  const std::string list = listOf(world);
  const auto clientWith = [&](const MasterFault& fault) {
    auto client = std::make_unique<MasterClient>(world);
    const std::string greeting = client->receiveBytes(kGreetingLength);
    world.setMasterFault(fault);
    client->send(messageFor(greeting));
    return client;
  };
  auto client = clientWith({FaultKind::TruncatedList, 10});
  EXPECT_EQ(client->receiveBytes(list.size() - 10), list.substr(0, list.size() - 10));
  EXPECT_EQ(client->receive(kShort), "nothing");

  client = clientWith({FaultKind::SplitEndMark});
  EXPECT_EQ(client->receive(), list.substr(0, list.size() - 3));
  EXPECT_EQ(client->receive(), "al\\");

  client = clientWith({FaultKind::RandomData, 6});
  const std::string data = client->receiveBytes(6 << 20);
  ASSERT_EQ(data.size(), 6u << 20);
  for (std::size_t i = 0; i < data.size(); i += 6) {
    ASSERT_EQ(data[i], 127) << "a record that leads away from this machine";
  }
  EXPECT_EQ(client->receive(kShort), "nothing");
}

}  // namespace
}  // namespace vantrel::sandbox

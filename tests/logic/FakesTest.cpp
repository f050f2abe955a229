// The fakes keep the contracts that the real adapters keep, so that no story below stands on a dream.
#include "support/FakeFiles.h"
#include "support/FakeNetwork.h"
#include "support/FakeRegistry.h"
#include "support/FilesContract.h"
#include "support/LoopContract.h"
#include "support/RegistryContract.h"
#include "support/TcpSocketContract.h"
#include "support/UdpSocketContract.h"

namespace vantrel {
namespace {

struct VirtualLoopHarness {
  Loop& loop() { return virtualLoop; }
  void beginEnding() { virtualLoop.ends = true; }

  VirtualLoop virtualLoop;
};

struct FakeUdpHarness : VirtualLoopHarness {
  UdpSocket& socket() { return udp; }
  std::string ip() const { return "127.0.0.1"; }
  int openPeer(const std::vector<std::string>& answers) {
    FakeServer& server = network.servers[ip() + ":" + std::to_string(++lastPort)];
    for (const std::string& answer : answers) {
      server.answers.push_back({answer});
    }
    return lastPort;
  }
  std::vector<std::string> received(int port) { return network.servers[ip() + ":" + std::to_string(port)].received; }
  int refusingPort() {
    network.servers[ip() + ":" + std::to_string(++lastPort)].refuses = true;
    return lastPort;
  }

  FakeNetwork network{virtualLoop};
  FakeUdpSocket udp{network};
  int lastPort = 2302;
};

struct FakeTcpHarness : VirtualLoopHarness {
  TcpSocket& socket() { return tcp; }
  std::string host() const { return "master.example.test"; }
  int openPeer(const std::string& greeting) {
    network.servers[host() + ":28900"].greeting = {{greeting}};
    return 28900;
  }
  int refusingPort() const { return 28901; }
  std::string received() {
    std::string all;
    for (const std::string& message : network.servers[host() + ":28900"].received) {
      all += message;
    }
    return all;
  }
  void peerSends(const std::string& bytes) { tcp.receive({{bytes}}); }
  void peerEnds() { tcp.receive({{.bytes = "", .ends = true}}); }

  FakeNetwork network{virtualLoop};
  FakeTcpSocket tcp{network};
};

struct FakeFilesHarness {
  FakeFilesHarness() { fake.makeFolder(folder()); }
  Files& files() { return fake; }
  std::string folder() const { return "/app"; }
  void makeFolder(const std::string& path) { fake.makeFolder(path); }
  void changeOutside(const std::string& path, const std::string& bytes) { fake.changeOutside(path, bytes); }

  FakeFiles fake;
};

struct FakeRegistryHarness {
  Registry& registry() { return fake; }

  FakeRegistry fake;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LoopContract, VirtualLoopHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, UdpSocketContract, FakeUdpHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, TcpSocketContract, FakeTcpHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FilesContract, FakeFilesHarness);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, RegistryContract, FakeRegistryHarness);

}  // namespace
}  // namespace vantrel

// Real echoes keep the contract, on both kinds of sockets, and take nothing for an answer that is none.
//
// The tests run on a network of their own, which has nothing but the addresses of this machine: there the test decides
// who is permitted and who answers. To have one takes an administrator's rights; without them most of the tests skip.
#include "desktop/adapters/PosixIcmp.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDir>
#include <cstring>
#include <fstream>
#include <functional>

#include "desktop/adapters/PosixReader.h"
#include "desktop/adapters/QtLoop.h"
#include "support/IcmpContract.h"

namespace vantrel {
namespace {

class OwnNetwork {
 public:
  explicit OwnNetwork(IcmpSocketKind permitted) {
    before_ = ::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC);
    if (before_ < 0 || ::unshare(CLONE_NEWNET) != 0) {
      missing_ = std::string("no network of the test's own: ") + std::strerror(errno);
      return;
    }
    entered_ = true;
    ifreq loopback{};
    std::strcpy(loopback.ifr_name, "lo");
    loopback.ifr_flags = IFF_UP;
    const int any = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const bool up = ::ioctl(any, SIOCSIFFLAGS, &loopback) == 0;
    ::close(any);
    if (!up || !set("ping_group_range", permitted == IcmpSocketKind::datagram ? "0 2147483647" : "1 0")) {
      missing_ = "the network of the test's own cannot be set up";
    }
  }
  OwnNetwork(const OwnNetwork&) = delete;
  OwnNetwork& operator=(const OwnNetwork&) = delete;
  ~OwnNetwork() {
    if (denied_) {
      EXPECT_EQ(::seteuid(0), 0);
    }
    if (entered_) {
      EXPECT_EQ(::setns(before_, CLONE_NEWNET), 0);
    }
    ::close(before_);
  }

  const std::string& missing() const { return missing_; }
  bool silence() { return set("icmp_echo_ignore_all", "1"); }
  void deny() {
    constexpr uid_t nobody = 65534;
    EXPECT_TRUE(set("ping_group_range", "1 0"));
    denied_ = ::seteuid(nobody) == 0;
    EXPECT_TRUE(denied_);
  }

 private:
  static bool set(const std::string& name, const std::string& value) {
    std::ofstream file("/proc/sys/net/ipv4/" + name);
    file << value << std::flush;
    return file.good();
  }

  int before_;
  bool entered_ = false;
  bool denied_ = false;
  std::string missing_;
};

template <IcmpSocketKind kind>
struct RealIcmp {
  std::string missing() const { return network_.missing(); }
  Loop& loop() { return loop_; }
  Icmp& icmp() { return icmp_; }
  std::string answeringHost() const { return "127.0.0.1"; }
  std::string silentHost() {
    EXPECT_TRUE(network_.silence());
    return "127.0.0.1";
  }
  void deny() { network_.deny(); }
  void beginEnding() { loop_.beginEnding(); }

  OwnNetwork network_{kind};
  QtLoop loop_;
  PosixIcmp icmp_{loop_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Datagram, IcmpContract, RealIcmp<IcmpSocketKind::datagram>);
INSTANTIATE_TYPED_TEST_SUITE_P(Raw, IcmpContract, RealIcmp<IcmpSocketKind::raw>);

// The message of an echo with another type and code, and a checksum that is still right.
std::string retyped(std::string message, char type, char code) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(message[at]); };
  unsigned sum = byte(2) * 256U + byte(3) + 0x0800U - static_cast<unsigned>(type * 256 + code);
  sum = (sum & 0xFFFF) + (sum >> 16);
  message[0] = type;
  message[1] = code;
  message[2] = static_cast<char>(sum >> 8);
  message[3] = static_cast<char>(sum);
  return message;
}

// A host on the other side of a network that is silent otherwise: it is handed each echo, with the header of IP, from
// the loop.
class Peer {
 public:
  explicit Peer(std::function<void(const std::string& packet)> asked)
      : reader_(descriptor_, [this, asked = std::move(asked)] {
          char packet[200];
          const ssize_t length = ::recv(descriptor_, packet, sizeof packet, 0);
          if (length > 20 && packet[20] == 8) {
            asked({packet, static_cast<std::size_t>(length)});
          }
        }) {}
  ~Peer() { ::close(descriptor_); }

 private:
  int descriptor_ = ::socket(AF_INET, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, IPPROTO_ICMP);
  PosixReader reader_;
};

void sendToThisMachine(const std::string& message, const std::string& from = "127.0.0.1") {
  const auto address = [](const std::string& ip) { return sockaddr_in{AF_INET, 0, {inet_addr(ip.c_str())}, {}}; };
  const int sender = ::socket(AF_INET, SOCK_RAW | SOCK_CLOEXEC, IPPROTO_ICMP);
  const sockaddr_in source = address(from);
  const sockaddr_in target = address("127.0.0.1");
  EXPECT_EQ(::bind(sender, reinterpret_cast<const sockaddr*>(&source), sizeof source), 0);
  EXPECT_GE(
      ::sendto(sender, message.data(), message.size(), 0, reinterpret_cast<const sockaddr*>(&target), sizeof target),
      0);
  ::close(sender);
}

template <class Harness>
struct IcmpPeerTest : IcmpContract<Harness> {};
using BothKinds = testing::Types<RealIcmp<IcmpSocketKind::datagram>, RealIcmp<IcmpSocketKind::raw>>;
TYPED_TEST_SUITE(IcmpPeerTest, BothKinds);

TYPED_TEST(IcmpPeerTest, answers_to_others_and_broken_ones_are_passed_over) {
  const std::string host = this->harness.silentHost();
  Peer peer([this](const std::string& packet) {
    std::string broken = retyped(packet.substr(20), 0, 0);
    sendToThisMachine(broken, "127.0.0.2");
    sendToThisMachine(broken.substr(0, 5));
    broken.back() = 'F';
    sendToThisMachine(broken);
    this->story += "asked ";
  });
  EXPECT_EQ(this->echo(host, 50), EchoReply{});
  EXPECT_EQ(this->story, "asked ");
}

TEST(PosixIcmpTest, a_packet_is_the_answer_only_when_all_of_it_fits_the_echo) {
  constexpr std::uint32_t host = 0x0100007F;
  const Echo echo{IcmpSocketKind::raw, host, 0x1234, 0xFFFE, "E"};
  const auto message = [](std::uint16_t identifier, std::uint16_t sequence, const char* payload) {
    return retyped(echoMessage({IcmpSocketKind::raw, 0, identifier, sequence, payload}), 0, 0);
  };
  const std::string header = "\x45" + std::string(19, '\0');
  const std::string right = message(0x1234, 0xFFFE, "E");
  std::string wrongSum = right;
  wrongSum[2] ^= 1;
  const struct {
    const char* what;
    std::uint32_t source;
    std::string packet;
    bool raw;
    bool datagram;  // of which the first 20 bytes are not part
  } table[] = {
      {"right", host, header + right, true, true},
      {"options of IP", host, "\x46" + std::string(23, '\0') + right, true, false},
      {"another host", host + 1, header + right, false, false},
      {"another program's", host, header + message(0x1235, 0xFFFE, "E"), false, true},
      {"an earlier echo's", host, header + message(0x1234, 0xFFFD, "E"), false, false},
      {"another payload", host, header + message(0x1234, 0xFFFE, "F"), false, false},
      {"a longer payload", host, header + message(0x1234, 0xFFFE, "EE"), false, false},
      {"no payload", host, header + message(0x1234, 0xFFFE, ""), false, false},
      {"a wrong checksum", host, header + wrongSum, false, false},
      {"the echo itself", host, header + echoMessage(echo), false, false},
      {"another code", host, header + retyped(echoMessage(echo), 0, 1), false, false},
      {"unreachable", host, header + retyped(echoMessage(echo), 3, 1), false, false},
      {"a header too short", host, "\x44" + std::string(15, '\0') + right, false, false},
      {"a header longer than all", host, "\x4F" + std::string(19, '\0') + right, false, true},
      {"another version of IP", host, "\x65" + std::string(19, '\0') + right, false, true},
  };
  for (const auto& row : table) {
    EXPECT_EQ(isAnswer(echo, row.source, row.packet), row.raw) << row.what;
    const Echo asDatagram{IcmpSocketKind::datagram, echo.address, 0, echo.sequence, echo.payload};
    EXPECT_EQ(isAnswer(asDatagram, row.source, std::string_view(row.packet).substr(20)), row.datagram) << row.what;
  }
  for (std::size_t length = 0; length < header.size() + right.size(); ++length) {
    EXPECT_FALSE(isAnswer(echo, host, (header + right).substr(0, length))) << length;
  }
}

TEST(PosixIcmpTest, a_thousand_echoes_of_this_user_to_this_machine_are_answered_and_leave_no_descriptor_behind) {
  QtLoop loop;
  PosixIcmp icmp(loop);
  if (const IcmpOpened opened = icmp.open(); opened.how == IcmpOpening::notPermitted) {
    GTEST_SKIP() << opened.explanation;
  }
  const auto descriptors = [] { return QDir("/proc/self/fd").entryList(QDir::System | QDir::Files).size(); };
  loop.wait(1);
  const auto before = descriptors();
  for (int i = 0; i < 1000; ++i) {
    const IcmpOpened opened = icmp.open();
    ASSERT_EQ(opened.how, IcmpOpening::opened) << opened.explanation;
    ASSERT_EQ(opened.handle->sendEcho("127.0.0.1", "E", 250).outcome, EchoOutcome::answered);
  }
  EXPECT_EQ(descriptors(), before);
}

}  // namespace
}  // namespace vantrel

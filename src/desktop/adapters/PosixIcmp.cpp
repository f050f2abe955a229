#include "desktop/adapters/PosixIcmp.h"

#include <arpa/inet.h>
#include <linux/icmp.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <memory>
#include <utility>

namespace vantrel {
namespace {

constexpr std::size_t longestIpHeader = 60;
constexpr std::size_t icmpHeader = 8;
constexpr int firstLook = 2;      // milliseconds; answers of this machine and its neighbours come within
constexpr int packetsALook = 64;  // a flood must not keep the window from its events

constexpr const char* notPermittedText =
    "Ping is not permitted to this user. An administrator can allow it with:\n"
    "sysctl -w net.ipv4.ping_group_range=\"0 2147483647\"";

// Of the whole message it is 0 when the message is sound.
std::uint16_t checksum(std::string_view message) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < message.size(); ++i) {
    const std::uint32_t byte = static_cast<unsigned char>(message[i]);
    sum += i % 2 == 0 ? byte << 8 : byte;
    sum = (sum & 0xFFFF) + (sum >> 16);
  }
  return static_cast<std::uint16_t>(~sum);
}

void put(std::string& message, std::size_t at, std::uint16_t number) {
  message[at] = static_cast<char>(number >> 8);
  message[at + 1] = static_cast<char>(number & 0xFF);
}

std::uint16_t numberAt(std::string_view message, std::size_t at) {
  return static_cast<std::uint16_t>(static_cast<unsigned char>(message[at]) << 8 |
                                    static_cast<unsigned char>(message[at + 1]));
}

// The message behind the header of IP; empty when there is none.
std::string_view withoutIpHeader(std::string_view packet) {
  constexpr std::size_t shortest = 20;
  const unsigned first = packet.empty() ? 0 : static_cast<unsigned char>(packet[0]);
  const std::size_t length = std::size_t{first & 0x0F} * 4;
  return first >> 4 == 4 && length >= shortest && length <= packet.size() ? packet.substr(length) : std::string_view();
}

class IcmpSocket {
 public:
  IcmpSocket(int descriptor, IcmpSocketKind kind) : descriptor_(descriptor), kind_(kind) {}
  IcmpSocket(const IcmpSocket&) = delete;
  IcmpSocket& operator=(const IcmpSocket&) = delete;
  ~IcmpSocket() { ::close(descriptor_); }
  // Empty on failure; `errno` tells which.
  static std::unique_ptr<IcmpSocket> open();

  IcmpSocketKind kind() const { return kind_; }
  bool send(const Echo& echo);
  // Returns as soon as something has arrived.
  void waitBlocking(int milliseconds) const {
    pollfd readable{descriptor_, POLLIN, 0};
    ::poll(&readable, 1, milliseconds);
  }
  enum class Arrived { nothing, answer, refusal };
  struct Look {
    Arrived arrived;
    std::int64_t nanoseconds;  // from the sending to the arrival of an answer
  };
  Look look(const Echo& echo) const;

 private:
  std::int64_t sinceSent(msghdr& message) const;

  int descriptor_;
  IcmpSocketKind kind_;
  timespec sent_{};
};

bool isDenial(int error) {
  return error == EACCES || error == EPERM;
}

std::unique_ptr<IcmpSocket> IcmpSocket::open() {
  for (const auto& [type, kind] :
       {std::pair(SOCK_DGRAM, IcmpSocketKind::datagram), std::pair(SOCK_RAW, IcmpSocketKind::raw)}) {
    const int descriptor = ::socket(AF_INET, type | SOCK_NONBLOCK | SOCK_CLOEXEC, IPPROTO_ICMP);
    if (descriptor >= 0) {
      return std::make_unique<IcmpSocket>(descriptor, kind);
    }
    if (!isDenial(errno) && errno != EPROTONOSUPPORT) {
      break;
    }
  }
  return nullptr;
}

bool IcmpSocket::send(const Echo& echo) {
  // Connected, a raw socket gets no packets of other hosts, and no errors that are about them.
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = echo.address;
  if (::connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    return false;
  }
  if (kind_ == IcmpSocketKind::raw) {
    icmp_filter others{};
    others.data = ~(1U << ICMP_ECHOREPLY);
    ::setsockopt(descriptor_, SOL_RAW, ICMP_FILTER, &others, sizeof others);
  }
  const int on = 1;
  ::setsockopt(descriptor_, IPPROTO_IP, IP_RECVERR, &on, sizeof on);
  ::setsockopt(descriptor_, SOL_SOCKET, SO_TIMESTAMPNS, &on, sizeof on);
  const std::string message = echoMessage(echo);
  ::clock_gettime(CLOCK_REALTIME, &sent_);
  return ::send(descriptor_, message.data(), message.size(), MSG_NOSIGNAL) >= 0;
}

// One more byte than the answer can have, so that a longer one is not cut to its size.
IcmpSocket::Look IcmpSocket::look(const Echo& echo) const {
  std::string bytes(longestIpHeader + icmpHeader + echo.payload.size() + 1, '\0');
  for (int i = 0; i < packetsALook; ++i) {
    sockaddr_in source{};
    iovec part{bytes.data(), bytes.size()};
    alignas(cmsghdr) std::array<char, 256> control{};
    msghdr message{};
    message.msg_name = &source;
    message.msg_namelen = sizeof source;
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    const ssize_t received = ::recvmsg(descriptor_, &message, MSG_DONTWAIT);
    if (received < 0) {
      const bool refused = errno != EAGAIN && errno != EINTR;
      return {refused ? Arrived::refusal : Arrived::nothing, 0};
    }
    if (isAnswer(echo, source.sin_addr.s_addr, std::string_view(bytes).substr(0, static_cast<std::size_t>(received)))) {
      return {Arrived::answer, sinceSent(message)};
    }
  }
  return {Arrived::nothing, 0};
}

// The system stamps a packet when it comes in, so it does not matter how late it is read.
std::int64_t IcmpSocket::sinceSent(msghdr& message) const {
  timespec arrived{};
  ::clock_gettime(CLOCK_REALTIME, &arrived);
  for (cmsghdr* head = CMSG_FIRSTHDR(&message); head != nullptr; head = CMSG_NXTHDR(&message, head)) {
    if (head->cmsg_level == SOL_SOCKET && head->cmsg_type == SCM_TIMESTAMPNS) {
      std::memcpy(&arrived, CMSG_DATA(head), sizeof arrived);
    }
  }
  return (std::int64_t{arrived.tv_sec} - sent_.tv_sec) * 1'000'000'000 + (arrived.tv_nsec - sent_.tv_nsec);
}

class PosixIcmpHandle : public IcmpHandle {
 public:
  PosixIcmpHandle(Loop& loop, std::unique_ptr<IcmpSocket> socket, std::uint32_t numbers)
      : loop_(loop),
        unused_(std::move(socket)),
        identifier_(static_cast<std::uint16_t>(numbers >> 16)),
        sequence_(static_cast<std::uint16_t>(numbers)) {}

  EchoReply sendEcho(const std::string& ip, const std::string& payload, int milliseconds) override;

 private:
  EchoReply waitFor(const Echo& echo, const IcmpSocket& socket, int milliseconds) const;

  Loop& loop_;
  std::unique_ptr<IcmpSocket> unused_;  // until the first echo
  std::uint16_t identifier_;
  std::uint16_t sequence_;
};

EchoReply PosixIcmpHandle::sendEcho(const std::string& ip, const std::string& payload, int milliseconds) {
  in_addr address{};
  if (ip.find('\0') != std::string::npos || inet_pton(AF_INET, ip.c_str(), &address) != 1) {
    return {EchoOutcome::noAddress};
  }
  // Each echo has a socket of its own, so that nothing is left of an earlier one and a nested one takes nothing away.
  const std::unique_ptr<IcmpSocket> socket = unused_ ? std::move(unused_) : IcmpSocket::open();
  if (loop_.ending() || !socket) {
    return {};
  }
  const Echo echo{socket->kind(), address.s_addr, identifier_, sequence_++, payload};
  return socket->send(echo) ? waitFor(echo, *socket, milliseconds) : EchoReply{};
}

// The loop cannot be woken by an answer, and a turn of it costs more than an answer that is almost there already: so
// the first look blocks, for less than anybody notices, and then there is one every millisecond.
EchoReply PosixIcmpHandle::waitFor(const Echo& echo, const IcmpSocket& socket, int milliseconds) const {
  const std::uint64_t begin = loop_.tickCount();
  const auto elapsed = [&] { return static_cast<std::int64_t>(loop_.tickCount() - begin); };
  socket.waitBlocking(std::clamp(milliseconds, 0, firstLook));
  while (!loop_.ending()) {
    const IcmpSocket::Look look = socket.look(echo);
    if (look.arrived == IcmpSocket::Arrived::answer) {
      // The clock of the stamps may have been set meanwhile.
      const std::int64_t trip = std::clamp<std::int64_t>(look.nanoseconds / 1'000'000, 0, elapsed());
      return trip <= milliseconds ? EchoReply{EchoOutcome::answered, static_cast<int>(trip)} : EchoReply{};
    }
    if (look.arrived == IcmpSocket::Arrived::refusal || elapsed() >= milliseconds) {
      break;
    }
    loop_.wait(1);
  }
  return {};
}

}  // namespace

std::string echoMessage(const Echo& echo) {
  std::string message(icmpHeader, '\0');
  message[0] = ICMP_ECHO;
  put(message, 4, echo.identifier);
  put(message, 6, echo.sequence);
  message += echo.payload;
  put(message, 2, checksum(message));
  return message;
}

bool isAnswer(const Echo& echo, std::uint32_t source, std::string_view packet) {
  const bool raw = echo.kind == IcmpSocketKind::raw;
  const std::string_view message = raw ? withoutIpHeader(packet) : packet;
  return message.size() == icmpHeader + echo.payload.size() && source == echo.address && message[0] == ICMP_ECHOREPLY &&
         message[1] == 0 && checksum(message) == 0 && (!raw || numberAt(message, 4) == echo.identifier) &&
         numberAt(message, 6) == echo.sequence && message.substr(icmpHeader) == echo.payload;
}

IcmpOpened PosixIcmp::open() {
  std::unique_ptr<IcmpSocket> socket = IcmpSocket::open();
  if (socket) {
    const auto numbers = static_cast<std::uint32_t>(random_());
    return {IcmpOpening::opened, std::make_unique<PosixIcmpHandle>(loop_, std::move(socket), numbers), ""};
  }
  if (isDenial(errno)) {
    return {IcmpOpening::notPermitted, nullptr, notPermittedText};
  }
  return {IcmpOpening::failed, nullptr, std::strerror(errno)};
}

}  // namespace vantrel

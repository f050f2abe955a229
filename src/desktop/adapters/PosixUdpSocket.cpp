#include "desktop/adapters/PosixUdpSocket.h"

#include <arpa/inet.h>
#include <linux/errqueue.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace vantrel {
namespace {

constexpr int receiveBuffer = 4 * 1024 * 1024;  // bytes; the system may grant less
constexpr std::size_t longestDatagram = 65536;
constexpr int sendTries = 4;

std::string dotted(const sockaddr_in& address) {
  std::array<char, INET_ADDRSTRLEN> text{};
  inet_ntop(AF_INET, &address.sin_addr, text.data(), text.size());
  return text.data();
}

sockaddr_in destination(const std::string& ip, int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  if (port < 1 || port > 65535 || ip.find('\0') != std::string::npos ||
      inet_pton(AF_INET, ip.c_str(), &address.sin_addr) != 1) {
    throw failures::sendFailed("The address is not valid");
  }
  return address;
}

// A refusal of an earlier datagram fails the next send, whatever its address, and the datagram is then not sent.
bool isOfEarlierDatagram(int error) {
  return error == ECONNREFUSED || error == EHOSTUNREACH || error == ENETUNREACH || error == EHOSTDOWN ||
         error == EPROTO || error == ENOPROTOOPT || error == ENONET || error == EOPNOTSUPP || error == EMSGSIZE;
}

}  // namespace

PosixUdpSocket::PosixUdpSocket(ArrivalNesting& nesting)
    : gate_(nesting, [this] {
        if (reader_) {
          reader_->setEnabled(gate_.isOpen());
        }
      }) {}

PosixUdpSocket::~PosixUdpSocket() {
  close();
}

void PosixUdpSocket::open() {
  descriptor_ = ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (descriptor_ < 0) {
    throw failures::sendFailed(std::strerror(errno));
  }
  const int on = 1;
  ::setsockopt(descriptor_, IPPROTO_IP, IP_RECVERR, &on, sizeof on);
  ::setsockopt(descriptor_, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
  reader_ = std::make_unique<PosixReader>(descriptor_, [this] { gate_.run([this] { read(); }); });
  reader_->setEnabled(gate_.isOpen());
}

void PosixUdpSocket::close() {
  reader_.reset();
  if (descriptor_ >= 0) {
    ::close(std::exchange(descriptor_, -1));
  }
}

int PosixUdpSocket::localPort() const {
  sockaddr_in address{};
  socklen_t length = sizeof address;
  if (descriptor_ < 0 || ::getsockname(descriptor_, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
    return 0;
  }
  return ntohs(address.sin_port);
}

void PosixUdpSocket::send(const std::string& ip, int port, const std::string& bytes) {
  const sockaddr_in address = destination(ip, port);
  if (descriptor_ < 0) {
    open();
  }
  for (int i = 0; i < sendTries; ++i) {
    const ssize_t sent = ::sendto(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL,
                                  reinterpret_cast<const sockaddr*>(&address), sizeof address);
    if (sent >= 0) {
      return;
    }
    if (errno == EAGAIN || errno == ENOBUFS) {
      pollfd writable{descriptor_, POLLOUT, 0};
      ::poll(&writable, 1, 5);
    } else if (!isOfEarlierDatagram(errno) && errno != EINTR) {
      break;
    }
  }
  throw failures::sendFailed(std::strerror(errno));
}

// One datagram a call: its handler may wait, and the next one is then taken by a nested call. The refusals go first, as
// they hide the datagrams behind them.
void PosixUdpSocket::read() {
  while (const std::optional<Refusal> refusal = takeRefusal()) {
    if (error_) {
      const auto handler = error_;
      handler(failures::connectionReset(), refusal->ip, refusal->port);
      return;
    }
  }
  const std::optional<Datagram> datagram = takeDatagram();
  if (datagram && arrival_) {
    const auto handler = arrival_;
    handler(*datagram);
  }
}

std::optional<PosixUdpSocket::Refusal> PosixUdpSocket::takeRefusal() const {
  while (true) {
    sockaddr_in remote{};
    alignas(cmsghdr) std::array<char, 512> control{};
    msghdr message{};
    message.msg_name = &remote;
    message.msg_namelen = sizeof remote;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    if (::recvmsg(descriptor_, &message, MSG_ERRQUEUE | MSG_DONTWAIT) < 0) {
      return std::nullopt;
    }
    for (cmsghdr* head = CMSG_FIRSTHDR(&message); head != nullptr; head = CMSG_NXTHDR(&message, head)) {
      if (head->cmsg_level != IPPROTO_IP || head->cmsg_type != IP_RECVERR) {
        continue;
      }
      sock_extended_err error{};
      std::memcpy(&error, CMSG_DATA(head), sizeof error);
      if (error.ee_origin == SO_EE_ORIGIN_ICMP && error.ee_errno == ECONNREFUSED) {
        return Refusal{dotted(remote), ntohs(remote.sin_port)};
      }
    }
  }
}

std::optional<Datagram> PosixUdpSocket::takeDatagram() const {
  std::string bytes(longestDatagram, '\0');
  sockaddr_in sender{};
  socklen_t length = sizeof sender;
  const ssize_t received =
      ::recvfrom(descriptor_, bytes.data(), bytes.size(), MSG_DONTWAIT, reinterpret_cast<sockaddr*>(&sender), &length);
  if (received < 0) {
    return std::nullopt;
  }
  bytes.resize(static_cast<std::size_t>(received));
  bytes.shrink_to_fit();
  return Datagram{std::move(bytes), dotted(sender), ntohs(sender.sin_port)};
}

}  // namespace vantrel

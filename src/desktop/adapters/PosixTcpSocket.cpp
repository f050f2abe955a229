#include "desktop/adapters/PosixTcpSocket.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QHostInfo>
#include <QSocketNotifier>
#include <QTimer>
#include <cerrno>
#include <cstring>
#include <utility>

namespace vantrel {
namespace {

constexpr std::size_t longestArrival = 65536;

// The length of the address as the system wants it; 0 for an address of no known kind.
socklen_t systemAddress(const QHostAddress& host, int port, sockaddr_storage& storage) {
  storage = {};
  bool isFour = false;
  const quint32 four = host.toIPv4Address(&isFour);
  if (isFour) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(four);
    std::memcpy(&storage, &address, sizeof address);
    return sizeof address;
  }
  if (host.protocol() != QAbstractSocket::IPv6Protocol) {
    return 0;
  }
  sockaddr_in6 address{};
  address.sin6_family = AF_INET6;
  address.sin6_port = htons(static_cast<std::uint16_t>(port));
  const Q_IPV6ADDR six = host.toIPv6Address();
  std::memcpy(&address.sin6_addr, &six, sizeof address.sin6_addr);
  std::memcpy(&storage, &address, sizeof address);
  return sizeof address;
}

}  // namespace

PosixTcpSocket::PosixTcpSocket(ArrivalNesting& nesting)
    : gate_(nesting, [this] {
        if (reader_) {
          reader_->setEnabled(gate_.isOpen());
        }
      }) {}

PosixTcpSocket::~PosixTcpSocket() {
  close();
}

void PosixTcpSocket::connect(const std::string& host, int port) {
  port_ = port;
  state_ = SocketState::resolvingHost;
  const QString name = QString::fromLatin1(host.data(), static_cast<qsizetype>(host.size()));
  const int attempt = ++attempt_;
  const QHostAddress literal(name);
  if (!literal.isNull()) {
    // An address has no need of a name server, and none is asked for the name behind it.
    addresses_ = {literal};
    QTimer::singleShot(0, this, [this, attempt] { tryAddressesOf(attempt); });
    return;
  }
  QHostInfo::lookupHost(name, this, [this, attempt](const QHostInfo& info) {
    if (attempt == attempt_) {
      const QList<QHostAddress> found = info.addresses();
      addresses_.assign(found.begin(), found.end());
    }
    tryAddressesOf(attempt);
  });
}

// An attempt that was closed meanwhile comes to nothing.
void PosixTcpSocket::tryAddressesOf(int attempt) {
  if (attempt == attempt_) {
    tryNextAddress();
  }
}

void PosixTcpSocket::close() {
  ++attempt_;
  addresses_.clear();
  dropDescriptor();
  state_ = SocketState::closed;
}

void PosixTcpSocket::dropDescriptor() {
  reader_.reset();
  outgoing_.clear();
  if (writer_ != nullptr) {
    writer_->setEnabled(false);
    std::exchange(writer_, nullptr)->deleteLater();
  }
  if (descriptor_ >= 0) {
    ::close(std::exchange(descriptor_, -1));
  }
}

void PosixTcpSocket::tryNextAddress() {
  dropDescriptor();
  while (!addresses_.empty()) {
    const QHostAddress address = addresses_.front();
    addresses_.pop_front();
    if (beginConnecting(address)) {
      return;
    }
    dropDescriptor();
  }
  end(SocketState::error);
}

bool PosixTcpSocket::beginConnecting(const QHostAddress& host) {
  sockaddr_storage address{};
  const socklen_t length = systemAddress(host, port_, address);
  descriptor_ = length == 0 ? -1 : ::socket(address.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (descriptor_ < 0) {
    return false;
  }
  if (::connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), length) != 0 && errno != EINPROGRESS) {
    return false;
  }
  state_ = SocketState::connecting;
  writer_ = new QSocketNotifier(descriptor_, QSocketNotifier::Write);
  QObject::connect(writer_, &QSocketNotifier::activated, this, [this] { writable(); });
  return true;
}

void PosixTcpSocket::writable() {
  if (writer_ == nullptr) {
    return;
  }
  writer_->setEnabled(false);
  if (state_ == SocketState::connecting) {
    finishConnecting();
  } else if (!outgoing_.empty()) {
    send({});
  }
}

void PosixTcpSocket::finishConnecting() {
  int error = 0;
  socklen_t length = sizeof error;
  if (::getsockopt(descriptor_, SOL_SOCKET, SO_ERROR, &error, &length) != 0 || error != 0) {
    tryNextAddress();
    return;
  }
  addresses_.clear();
  state_ = SocketState::connected;
  reader_ = std::make_unique<PosixReader>(descriptor_, [this] { gate_.run([this] { read(); }); });
  reader_->setEnabled(gate_.isOpen());
}

void PosixTcpSocket::send(const std::string& bytes) {
  if (state_ != SocketState::connected) {
    throw failures::connectionReset();
  }
  outgoing_ += bytes;
  const ssize_t sent = ::send(descriptor_, outgoing_.data(), outgoing_.size(), MSG_NOSIGNAL);
  if (sent > 0) {
    outgoing_.erase(0, static_cast<std::size_t>(sent));
  }
  // What is left goes when the system has room; a dead connection tells itself on the reading side.
  writer_->setEnabled(!outgoing_.empty() && (sent >= 0 || errno == EAGAIN));
}

void PosixTcpSocket::read() {
  std::string bytes(longestArrival, '\0');
  const ssize_t received = ::recv(descriptor_, bytes.data(), bytes.size(), 0);
  if (received > 0) {
    bytes.resize(static_cast<std::size_t>(received));
    if (arrival_) {
      const auto handler = arrival_;
      handler(bytes);
    }
  } else if (received == 0) {
    end(SocketState::closed);
  } else if (errno != EAGAIN && errno != EINTR) {
    end(SocketState::error);
  }
}

void PosixTcpSocket::end(SocketState state) {
  dropDescriptor();
  state_ = state;
  if (ended_) {
    const auto handler = ended_;
    handler();
  }
}

}  // namespace vantrel

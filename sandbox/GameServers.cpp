#include "sandbox/GameServers.h"

#include <sys/epoll.h>
#include <sys/socket.h>

#include <cstring>

#include "sandbox/Random.h"
#include "sandbox/StatusReply.h"

namespace vantrel::sandbox {
namespace {

// How many datagrams of one socket are taken before the other sockets and the timers get their turn.
constexpr int kDatagramsAtOnce = 64;

std::uint64_t keyOf(const Endpoint& endpoint) {
  return std::uint64_t{endpoint.address} << 16 | endpoint.port;
}

union ControlBuffer {
  cmsghdr header;  // gives the bytes their alignment
  char bytes[CMSG_SPACE(sizeof(in_pktinfo))];
};

std::uint32_t destinationOf(msghdr& message) {
  for (cmsghdr* part = CMSG_FIRSTHDR(&message); part != nullptr; part = CMSG_NXTHDR(&message, part)) {
    if (part->cmsg_level == IPPROTO_IP && part->cmsg_type == IP_PKTINFO) {
      in_pktinfo info{};
      std::memcpy(&info, CMSG_DATA(part), sizeof info);
      return ntohl(info.ipi_addr.s_addr);
    }
  }
  return 0;
}

bool sendFrom(const Descriptor& socket, std::uint32_t source, const Endpoint& to, const std::string& text) {
  sockaddr_in address = socketAddress(to);
  iovec data{const_cast<char*>(text.data()), text.size()};
  ControlBuffer control{};
  msghdr message{};
  message.msg_name = &address;
  message.msg_namelen = sizeof address;
  message.msg_iov = &data;
  message.msg_iovlen = 1;
  message.msg_control = control.bytes;
  message.msg_controllen = sizeof control.bytes;
  cmsghdr* part = CMSG_FIRSTHDR(&message);
  part->cmsg_level = IPPROTO_IP;
  part->cmsg_type = IP_PKTINFO;
  part->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
  in_pktinfo info{};
  info.ipi_spec_dst.s_addr = htonl(source);
  std::memcpy(CMSG_DATA(part), &info, sizeof info);
  return sendmsg(socket.number(), &message, 0) >= 0;
}

}  // namespace

GameServers::GameServers(const WorldSettings& settings, EventLoop& loop, QueryLog& log)
    : settings_(settings), loop_(loop), log_(log), buffer_(65536) {
  const GamePorts wanted = wantedPorts(settings);
  for (std::size_t i = 0; i < sockets_.size(); ++i) {
    sockets_[i] = openUdp({INADDR_ANY, wanted.open[i]});
    const int yes = 1;
    throwIf(setsockopt(sockets_[i].number(), IPPROTO_IP, IP_PKTINFO, &yes, sizeof yes) != 0,
            "the destinations of datagrams cannot be told apart");
  }
  refusing_ = openRefusingUdp(wanted.closed);
}

GamePorts GameServers::ports() const {
  GamePorts result;
  for (std::size_t i = 0; i < sockets_.size(); ++i) {
    result.open[i] = localEndpoint(sockets_[i]).port;
  }
  result.closed = localEndpoint(refusing_).port;
  return result;
}

void GameServers::serve(const std::vector<GameServer>& servers) {
  for (const GameServer& server : servers) {
    served_.emplace(keyOf(server.endpoint), Served{&server, statusReply(server)});
  }
  for (std::size_t i = 0; i < sockets_.size(); ++i) {
    loop_.watch(sockets_[i].number(), EPOLLIN, [this, i](std::uint32_t) { receive(i); });
  }
}

void GameServers::receive(std::size_t socket) {
  const std::uint16_t port = localEndpoint(sockets_[socket]).port;
  for (int i = 0; i < kDatagramsAtOnce; ++i) {
    sockaddr_in client{};
    iovec data{buffer_.data(), buffer_.size()};
    ControlBuffer control{};
    msghdr message{};
    message.msg_name = &client;
    message.msg_namelen = sizeof client;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control.bytes;
    message.msg_controllen = sizeof control.bytes;
    const ssize_t size = recvmsg(sockets_[socket].number(), &message, MSG_DONTWAIT);
    if (size < 0) {
      return;
    }
    handle(socket,
           {endpointOf(client), {destinationOf(message), port}, {buffer_.data(), static_cast<std::size_t>(size)}});
  }
}

void GameServers::handle(std::size_t socket, const Datagram& query) {
  const auto found = query.to.isLoopback() ? served_.find(keyOf(query.to)) : served_.end();
  if (found == served_.end()) {
    log_.add(LogEvent::QueryReceived, query.from, query.to, query.text);
    return;
  }
  Served& served = found->second;
  const bool lost = losesNext(served);
  log_.add(lost ? LogEvent::QueryLost : LogEvent::QueryReceived, query.from, query.to, query.text);
  if (lost || served.server->behaviour != Behaviour::Answers || !isStatusQuery(query.text)) {
    return;
  }
  loop_.callAt(EventLoop::Clock::now() + served.server->latency,
               [this, socket, &served, client = query.from] { send(socket, served, client); });
}

void GameServers::send(std::size_t socket, Served& served, const Endpoint& client) {
  const Endpoint& source = served.server->endpoint;
  // A reply that the kernel does not take is lost like any other.
  const bool sent = !losesNext(served) && sendFrom(sockets_[socket], source.address, client, served.reply);
  log_.add(sent ? LogEvent::ReplySent : LogEvent::ReplyLost, source, client, served.reply);
}

bool GameServers::losesNext(Served& served) const {
  // Drawn from the server's own count of datagrams, so that it does not matter in which order others are asked.
  return Random(settings_.seed, served.server->endpoint.address, served.datagrams++).chance(settings_.loss);
}

}  // namespace vantrel::sandbox

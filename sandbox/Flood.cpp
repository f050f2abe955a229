#include "sandbox/Flood.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

#include "sandbox/Random.h"
#include "sandbox/Sockets.h"
#include "sandbox/StatusReply.h"

namespace vantrel::sandbox {
namespace {

constexpr std::size_t kVariety = 256;
constexpr std::size_t kAtOnce = 64;

std::string randomText(Random& random, std::size_t size) {
  std::string text(size, '\0');
  for (char& character : text) {
    character = static_cast<char>(random.next() & 0xFF);
  }
  return text;
}

std::string garbage(Random& random, const std::string& reply) {
  switch (random.below(8)) {
    case 0:
      return {};
    case 1:
      return randomText(random, 8000 + random.below(24000));
    case 2:
    case 3:
    case 4:
      return reply.substr(0, random.below(reply.size()));
    default:
      return randomText(random, 1 + random.below(1200));
  }
}

std::vector<std::string> makeDatagrams(std::uint64_t seed) {
  WorldSettings settings;
  settings.seed = seed;
  settings.servers = kVariety;
  Random random(seed);
  std::vector<std::string> datagrams;
  for (const GameServer& server : planServers(settings, wantedPorts(settings))) {
    const std::string reply = statusReply(server);
    datagrams.push_back(datagrams.size() % 2 == 0 ? reply : garbage(random, reply));
  }
  return datagrams;
}

}  // namespace

std::size_t sendFlood(int socket, const std::string& targetIp, std::uint16_t targetPort, std::size_t count,
                      std::uint64_t seed) {
  sockaddr_in target = socketAddress(loopbackEndpoint(targetIp, targetPort));
  std::vector<std::string> datagrams = makeDatagrams(seed);
  std::array<iovec, kVariety> parts{};
  std::array<mmsghdr, kVariety> messages{};
  for (std::size_t i = 0; i < kVariety; ++i) {
    parts[i] = {datagrams[i].data(), datagrams[i].size()};
    messages[i].msg_hdr.msg_name = &target;
    messages[i].msg_hdr.msg_namelen = sizeof target;
    messages[i].msg_hdr.msg_iov = &parts[i];
    messages[i].msg_hdr.msg_iovlen = 1;
  }
  std::size_t sent = 0;
  while (sent < count) {
    const std::size_t position = sent % kVariety;
    const std::size_t batch = std::min({kAtOnce, count - sent, kVariety - position});
    const int taken = sendmmsg(socket, &messages[position], static_cast<unsigned>(batch), 0);
    if (taken > 0) {
      sent += static_cast<std::size_t>(taken);
    } else if (errno == EAGAIN || errno == ENOBUFS) {
      pollfd writable{socket, POLLOUT, 0};
      poll(&writable, 1, 10);
    } else if (errno != ECONNREFUSED && errno != EINTR) {
      break;  // A refusal tells of an earlier datagram only; any other failure would come again.
    }
  }
  return sent;
}

}  // namespace vantrel::sandbox

#include "sandbox/Sockets.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace vantrel::sandbox {
namespace {

sockaddr* generic(sockaddr_in& address) {
  return reinterpret_cast<sockaddr*>(&address);
}

void bindTo(const Descriptor& socket, const Endpoint& local, const std::string& protocol) {
  sockaddr_in address = socketAddress(local);
  throwIf(bind(socket.number(), generic(address), sizeof address) != 0,
          protocol + " port " + std::to_string(local.port) + " at " + local.ip() + " cannot be used");
}

}  // namespace

Descriptor::~Descriptor() {
  if (number_ >= 0) {
    close(number_);
  }
}

void throwIf(bool failed, const std::string& what) {
  if (failed) {
    throw std::system_error(errno, std::generic_category(), what);
  }
}

sockaddr_in socketAddress(const Endpoint& endpoint) {
  sockaddr_in result{};
  result.sin_family = AF_INET;
  result.sin_addr.s_addr = htonl(endpoint.address);
  result.sin_port = htons(endpoint.port);
  return result;
}

Endpoint endpointOf(const sockaddr_in& address) {
  return {ntohl(address.sin_addr.s_addr), ntohs(address.sin_port)};
}

Endpoint localEndpoint(const Descriptor& socket) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  throwIf(getsockname(socket.number(), generic(address), &size) != 0, "the address of a socket cannot be read");
  return endpointOf(address);
}

Descriptor openUdp(const Endpoint& local) {
  Descriptor result(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  throwIf(result.number() < 0, "a UDP socket cannot be opened");
  const int bufferBytes = 4 << 20;
  setsockopt(result.number(), SOL_SOCKET, SO_RCVBUF, &bufferBytes, sizeof bufferBytes);
  setsockopt(result.number(), SOL_SOCKET, SO_SNDBUF, &bufferBytes, sizeof bufferBytes);
  bindTo(result, local, "UDP");
  return result;
}

Descriptor openListener(const Endpoint& local) {
  Descriptor result(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  throwIf(result.number() < 0, "a TCP socket cannot be opened");
  // A sandbox started right after another one must not wait for the old conversations to fade.
  const int yes = 1;
  setsockopt(result.number(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  bindTo(result, local, "TCP");
  throwIf(listen(result.number(), 128) != 0, "TCP port " + std::to_string(local.port) + " cannot be listened at");
  return result;
}

Descriptor openRefusingUdp(std::uint16_t port) {
  // A connected socket takes datagrams from its peer only; the kernel refuses all others as if nobody were there. A
  // port that is merely left free could be given to somebody's client socket at any moment and would then be silent.
  Descriptor result = openUdp({INADDR_ANY, port});
  sockaddr_in nobody = socketAddress(loopbackEndpoint("127.255.255.254", 1));
  throwIf(connect(result.number(), generic(nobody), sizeof nobody) != 0, "a refusing UDP port cannot be made");
  return result;
}

}  // namespace vantrel::sandbox

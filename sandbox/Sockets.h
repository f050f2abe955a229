#pragma once

#include <netinet/in.h>

#include <utility>

#include "sandbox/Endpoint.h"

namespace vantrel::sandbox {

/// Owns one file descriptor and closes it.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();

  int number() const { return number_; }

 private:
  int number_ = -1;
};

/// Throws std::system_error made from errno and `what` if `failed`.
void throwIf(bool failed, const std::string& what);

sockaddr_in socketAddress(const Endpoint& endpoint);
Endpoint endpointOf(const sockaddr_in& address);
/// The address to which the kernel bound the socket.
Endpoint localEndpoint(const Descriptor& socket);

/// Opens a UDP socket bound to `local` (port 0: any free one), with receive and send buffers of up to 4 MB, as far as
/// the system allows. Throws std::system_error that names the port if the port is taken.
Descriptor openUdp(const Endpoint& local);

/// Opens a TCP socket that listens at `local` (port 0: any free one). Throws like openUdp.
Descriptor openListener(const Endpoint& local);

/// Takes a UDP port (0: any free one) so that every datagram sent to it is refused by the kernel for as long as the
/// result lives. Throws like openUdp.
Descriptor openRefusingUdp(std::uint16_t port);

}  // namespace vantrel::sandbox

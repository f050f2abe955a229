#pragma once

#include <cstdint>
#include <string>

namespace vantrel::sandbox {

/// An IPv4 address (first byte in the highest bits) and a port.
struct Endpoint {
  std::uint32_t address = 0;
  std::uint16_t port = 0;

  /// The address as dotted text.
  std::string ip() const;
  /// Address and port as "127.16.0.9:2302".
  std::string text() const;
  bool isLoopback() const { return address >> 24 == 127; }
  bool operator==(const Endpoint&) const = default;
};

/// Makes an endpoint from a dotted address. Throws std::invalid_argument unless `ip` is an address of 127.0.0.0/8,
/// because nothing of the sandbox may ever leave the machine.
Endpoint loopbackEndpoint(const std::string& ip, std::uint16_t port);

}  // namespace vantrel::sandbox

#include "sandbox/Endpoint.h"

#include <arpa/inet.h>

#include <stdexcept>

namespace vantrel::sandbox {

std::string Endpoint::ip() const {
  std::string result;
  for (const int shift : {24, 16, 8, 0}) {
    result += std::to_string(address >> shift & 0xFF);
    result += shift > 0 ? "." : "";
  }
  return result;
}

std::string Endpoint::text() const {
  return ip() + ":" + std::to_string(port);
}

Endpoint loopbackEndpoint(const std::string& ip, std::uint16_t port) {
  in_addr parsed{};
  if (inet_pton(AF_INET, ip.c_str(), &parsed) != 1) {
    throw std::invalid_argument("\"" + ip + "\" is not a dotted address");
  }
  const Endpoint result{ntohl(parsed.s_addr), port};
  if (!result.isLoopback()) {
    throw std::invalid_argument("\"" + ip + "\" is not an address of 127.0.0.0/8");
  }
  return result;
}

}  // namespace vantrel::sandbox

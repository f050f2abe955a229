#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vantrel::sandbox {

/// Throws `count` datagrams at a UDP address as fast as the calling thread can, and returns how many the kernel took.
/// One half are valid replies of game servers; the others are garbage: empty and random datagrams, replies cut
/// anywhere, and some of many kilobytes. `socket` is an open UDP socket and stays the caller's.
/// Throws std::invalid_argument if the target is no address of 127.0.0.0/8.
std::size_t sendFlood(int socket, const std::string& targetIp, std::uint16_t targetPort, std::size_t count,
                      std::uint64_t seed = 1);

}  // namespace vantrel::sandbox

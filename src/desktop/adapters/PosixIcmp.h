// Echoes over the operating system's ICMP sockets, for IPv4.
//
// There are two kinds. A datagram socket is for everybody whose group is in net.ipv4.ping_group_range; the system picks
// the identifier and hands out nothing but answers to it. A raw socket is for the administrator and sees the ICMP of
// the whole machine. The first that is permitted is taken.
#pragma once

#include <cstdint>
#include <random>
#include <string_view>

#include "platform/Icmp.h"
#include "platform/Loop.h"

namespace vantrel {

class PosixIcmp : public Icmp {
 public:
  // `loop` must outlive the handles.
  explicit PosixIcmp(Loop& loop) : loop_(loop) {}

  IcmpOpened open() override;

 private:
  Loop& loop_;
  std::mt19937 random_{std::random_device{}()};
};

enum class IcmpSocketKind { datagram, raw };

// What was sent.
struct Echo {
  IcmpSocketKind kind;
  std::uint32_t address;  // as the socket calls have it
  std::uint16_t identifier;
  std::uint16_t sequence;
  std::string_view payload;
};

// The ICMP message that asks it.
std::string echoMessage(const Echo& echo);

// Whether what was received from `source` answers it. `packet` is as the kind of socket hands it out: a raw one with
// the header of IP before it. May be anything.
bool isAnswer(const Echo& echo, std::uint32_t source, std::string_view packet);

}  // namespace vantrel

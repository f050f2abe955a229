// Echoes on the network in memory: addresses answer after the round trip that the test scripted and are silent
// otherwise.
#pragma once

#include <arpa/inet.h>

#include <map>
#include <memory>
#include <string>

#include "platform/Icmp.h"
#include "support/FakeNetwork.h"

namespace vantrel {

class FakeIcmp : public Icmp {
 public:
  explicit FakeIcmp(FakeNetwork& network) : network_(network) {}
  IcmpOpened open() override {
    if (denied) {
      network_.note("icmp denied");
      return {IcmpOpening::notPermitted, nullptr, "Ping is not permitted.\nAllow it."};
    }
    network_.note("icmp open");
    return {IcmpOpening::opened, std::make_unique<Handle>(*this), ""};
  }

  std::map<std::string, int> roundTrips;  // in milliseconds, by address
  bool denied = false;

 private:
  struct Handle : IcmpHandle {
    explicit Handle(FakeIcmp& fake) : icmp(fake) {}
    ~Handle() override { icmp.network_.note("icmp close"); }
    // Every echo is in the network's log, like "0500 192.0.2.9 echo > E".
    EchoReply sendEcho(const std::string& ip, const std::string& payload, int milliseconds) override {
      in_addr address{};
      if (ip.find('\0') != std::string::npos || inet_pton(AF_INET, ip.c_str(), &address) != 1) {
        return {EchoOutcome::noAddress};
      }
      icmp.network_.note(ip + " echo > " + payload);
      const auto found = icmp.roundTrips.find(ip);
      const bool answers = found != icmp.roundTrips.end() && found->second <= milliseconds;
      const int trip = answers ? found->second : milliseconds;
      icmp.network_.loop.wait(trip);
      return answers && !icmp.network_.loop.ending() ? EchoReply{EchoOutcome::answered, trip} : EchoReply{};
    }
    FakeIcmp& icmp;
  };

  FakeNetwork& network_;
};

}  // namespace vantrel

// Face of the system's word on whether it is connected to a network.
#pragma once

namespace vantrel {

struct ConnectedState {
  bool connected = false;
  int flags = 0;  // sum of 1 by modem, 2 by a local network, 4 through a proxy
};

class Connectivity {
 public:
  virtual ~Connectivity() = default;
  // What the system knows, without a word to the network.
  virtual ConnectedState internetGetConnectedState() const = 0;
};

}  // namespace vantrel

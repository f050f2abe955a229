// Whether the machine has a network, as its interfaces tell.
#pragma once

#include "platform/Connectivity.h"

namespace vantrel {

class NetworkState : public Connectivity {
 public:
  ConnectedState internetGetConnectedState() const override;
};

}  // namespace vantrel

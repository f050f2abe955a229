#include "sandbox/WorldSettings.h"

#include <stdexcept>

#include "sandbox/Endpoint.h"

namespace vantrel::sandbox {
namespace {

void require(bool holds, const char* text) {
  if (!holds) {
    throw std::invalid_argument(text);
  }
}

bool isShare(double value) {
  return value >= 0 && value <= 1;
}

}  // namespace

void checkSettings(const WorldSettings& settings) {
  loopbackEndpoint(settings.masterAddress, settings.masterPort);
  loopbackEndpoint(settings.webAddress, settings.webPort.value_or(0));
  require(settings.servers <= 1'000'000, "there can be at most 1000000 servers");
  require(settings.gamePort <= 65000, "the game port can be at most 65000");
  require(settings.latencyLow.count() >= 0 && settings.latencyLow <= settings.latencyHigh &&
              settings.latencyHigh <= std::chrono::hours(1),
          "the latency goes from a low to a high number of milliseconds");
  require(isShare(settings.loss), "the loss is a number from 0 to 1");
  require(isShare(settings.lockedShare), "the share of locked servers is a number from 0 to 1");
  require(isShare(settings.silentShare) && isShare(settings.closedShare) &&
              settings.silentShare + settings.closedShare <= 1,
          "the shares of silent and closed servers are numbers from 0 to 1, and so is their sum");
  require(isShare(settings.fullShare) && isShare(settings.emptyShare) && settings.fullShare + settings.emptyShare <= 1,
          "the shares of full and empty servers are numbers from 0 to 1, and so is their sum");
}

}  // namespace vantrel::sandbox

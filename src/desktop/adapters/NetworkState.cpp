#include "desktop/adapters/NetworkState.h"

#include <QNetworkInterface>
#include <QNetworkProxyFactory>

namespace vantrel {
namespace {

constexpr int byModem = 1;
constexpr int byLan = 2;
constexpr int throughProxy = 4;

bool hasProxy() {
  const auto proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(QUrl(QStringLiteral("http://x/"))));
  return !proxies.isEmpty() && proxies.front().type() != QNetworkProxy::NoProxy;
}

}  // namespace

ConnectedState NetworkState::internetGetConnectedState() const {
  ConnectedState state;
  for (const QNetworkInterface& each : QNetworkInterface::allInterfaces()) {
    const auto flags = each.flags();
    const bool isUp = flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning) &&
                      !flags.testFlag(QNetworkInterface::IsLoopBack) && !each.addressEntries().isEmpty();
    if (isUp) {
      state.connected = true;
      state.flags |= each.type() == QNetworkInterface::Ppp || each.type() == QNetworkInterface::Slip ? byModem : byLan;
    }
  }
  if (state.connected && hasProxy()) {
    state.flags |= throughProxy;
  }
  return state;
}

}  // namespace vantrel

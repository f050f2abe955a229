#include "query/DetailQuery.h"

#include <algorithm>

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/PumpWait.h"
#include "core/Text.h"
#include "query/DetailReply.h"

namespace vantrel {
namespace {

constexpr const char* detailQuery = "\\";

// Of replies between two queries; a server's is no longer than 2,048 bytes.
constexpr std::size_t allowance = 256 * 1024;  // bytes

}  // namespace

DetailQuery::DetailQuery(const Context& context) : c_(context) {
  addCommand();
  c_.wsHaloData.onArrival([this](const Datagram& datagram) { stopSilently([&] { handle(datagram); }); });
  c_.wsHaloData.onError([this](const Failure& failure, const std::string&, int) { handleError(failure); });
}

DetailQuery::~DetailQuery() {
  c_.wsHaloData.onArrival({});
  c_.wsHaloData.onError({});
}

void DetailQuery::handle(const Datagram& datagram) {
  const std::string_view bytes = takeBytes(datagram);
  if (bytes.empty() && !datagram.bytes.empty()) {
    return;
  }
  DetailReply reply(bytes, c_.mainWindow, c_.notices, c_.view);
  reply.show(c_.checkMap);
  replied.fire({datagram.ip, datagram.port, reply.players(), reply.maxPlayers()});
}

// The rows of replies pile up until the next query. What nobody could read any more is left out.
std::string_view DetailQuery::takeBytes(const Datagram& datagram) {
  const std::size_t left = allowance - std::min(allowance, taken_);
  taken_ += datagram.bytes.size();
  return std::string_view(datagram.bytes).substr(0, datagram.bytes.size() <= left ? datagram.bytes.size() : 0);
}

void DetailQuery::addCommand() {
  c_.commands.add(command::queryServer, {[this] { beginView(); }, [this] { send(); }, [this] { PumpWait(c_.loop, 0); },
                                         [this] {
                                           if (canBeAsked()) {
                                             c_.ping.PingCurrent();
                                           }
                                         }});
}

void DetailQuery::beginView() {
  frmMain& window = c_.mainWindow;
  if (window.txtIP.text.get().empty()) {
    c_.notices.ShowPopMsg("Please enter a server IP to query.");
    throw CommandEnded{};
  }
  c_.showTab(window.cmbShowTab.text.get());
  window.cmdMenu[command::launchGame].enabled.set(true);
  window.picTools.visible.set(false);
  c_.view.ClearDetail();
  taken_ = 0;
}

bool DetailQuery::canBeAsked() const {
  return IsDottedQuad(c_.mainWindow.txtIP.text.get()) && isNumeric(c_.mainWindow.txtPort.text.get());
}

void DetailQuery::send() {
  if (canBeAsked()) {
    const std::string ip(trimBlanks(c_.mainWindow.txtIP.text.get()));
    c_.wsHaloData.send(ip, toPort(c_.mainWindow.txtPort.text.get()), detailQuery);
  }
}

void DetailQuery::handleError(const Failure& failure) {
  if (failure.number == failures::connectionReset().number) {
    c_.mainWindow.cmdMenu[command::autoJoinOn].value.set(0);
    c_.notices.popUpBalloon("The connection with the server was reset by remote host.", "Error Querying Server");
  }
}

}  // namespace vantrel

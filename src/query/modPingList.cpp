#include "query/modPingList.h"

#include <utility>

#include "core/PumpWait.h"
#include "core/Text.h"
#include "core/modSGrid.h"

namespace vantrel {
namespace {

constexpr const char* payload = ".";
constexpr int timeOut = 250;  // milliseconds
constexpr int pauseBehindEcho = 10;
constexpr int pauseBeforeShow = 50;
constexpr int lookAgain = 1;

constexpr const char* notPinged = "...";
constexpr int firewallIcon = 2;

constexpr Color yellow = 65535;
constexpr Color orange = 33023;

}  // namespace

modPingList::modPingList(frmMain& window, Icmp& icmp, Loop& loop, Notices& notices, SweepProgress& progress)
    : window_(window), icmp_(icmp), loop_(loop), notices_(notices) {
  tick_ = window.tmrPing.tick.connect([this, &progress] {
    passWaits_ = progress.walking.get();
    if (!passWaits_) {
      startPass();
    }
  });
  // In a turn of its own: what ends the walk goes on behind this.
  walkOver_ = progress.walking.changed.connect([this, &progress] {
    if (!progress.walking.get() && std::exchange(passWaits_, false)) {
      loop_.startTimer(0, TimerKind::once, [this] { startPass(); });
    }
  });
}

int modPingList::PingHost(const std::string& ip, const std::string& data, IcmpReply& reply) {
  const IcmpOpened opened = icmp_.open();
  if (opened.how == IcmpOpening::failed) {
    return 0;
  }
  EchoReply echo;
  if (opened.handle) {
    underWay_ = true;
    echo = opened.handle->sendEcho(ip, data, timeOut);
    underWay_ = false;
    if (echo.outcome == EchoOutcome::noAddress) {
      return -1;
    }
  } else {
    explanation_ = opened.explanation;
  }
  PumpWait(loop_, pauseBehindEcho);
  const bool answered = echo.outcome == EchoOutcome::answered;
  reply.rtt = answered ? echo.milliseconds : noAnswer;
  return answered ? 0 : 1;
}

Color modPingList::scale(int rtt) {
  if (rtt < 80) {
    return colors::green;
  }
  if (rtt < 100) {
    return yellow;
  }
  return rtt <= 130 ? orange : colors::red;
}

void modPingList::onceFree(std::function<void()> work) {
  if (!underWay_) {
    work();
  } else if (!loop_.ending()) {
    loop_.startTimer(lookAgain, TimerKind::once, [this, work = std::move(work)] { onceFree(work); });
  }
}

void modPingList::PingCurrent() {
  const int asking = ++asked_;
  onceFree([this, asking] { pingCurrentNow(asking); });
}

// Of several that wait inside one another the latest counts, and only for the server that it was sent to.
void modPingList::pingCurrentNow(int asking) {
  const std::string ip = window_.txtIP.text.get();
  if (asking != asked_ || !IsDottedQuad(ip)) {
    return;
  }
  IcmpReply reply;
  PingHost(ip, payload, reply);
  PumpWait(loop_, 0);
  PumpWait(loop_, pauseBeforeShow);
  if (asking != asked_ || window_.txtIP.text.get() != ip) {
    return;
  }
  const bool answered = reply.rtt != noAnswer;
  window_.txtPing.text.set(answered ? std::to_string(reply.rtt) + " ms" : " timeout");
  window_.txtPing.foreColor.set(answered ? scale(reply.rtt) : colors::red);
}

// A tick in the middle of a pass finds the rows that the pass will come to.
void modPingList::startPass() {
  onceFree([this] {
    if (passOf_ != window_.grdServers.generation()) {
      pingList();
    }
  });
}

// The numbers of the rows belong to a list: a pass over one that was emptied meanwhile is over, and the new one gets
// its own when its time has come.
void modPingList::pingList() {
  ServerGrid& grid = window_.grdServers;
  const std::uint32_t generation = grid.generation();
  const int count = grid.rowCount();
  passOf_ = generation;
  for (int row = 1; row <= count && !loop_.ending(); ++row) {
    pingRow(row);
    if (grid.generation() != generation) {
      break;
    }
  }
  if (passOf_ != generation) {  // The pass of a newer list has run in the middle of this one.
    return;
  }
  passOf_.reset();
  window_.tmrPing.switchOff();
  const int done = grid.generation() == generation ? count : 0;
  if (grid.rowCount() > done) {  // What came meanwhile gets its pass too.
    window_.tmrPing.switchOn();
  }
}

void modPingList::pingRow(int row) {
  ServerGrid& grid = window_.grdServers;
  const std::string ip = grid.cellText(row, cIP);
  if (ip.empty()) {
    grid.setCell(row, cPing, "???");
    grid.setCellColor(row, cPing, colors::red);
    return;
  }
  if (grid.cellText(row, cPing) != notPinged) {
    return;
  }
  const std::uint32_t generation = grid.generation();
  IcmpReply reply{noAnswer};  // also where no echo could be sent
  PingHost(ip, payload, reply);
  explainOnce();
  if (grid.generation() != generation) {
    return;
  }
  if (reply.rtt == noAnswer) {
    grid.setCell(row, cPing, "firewall");
    grid.setCellColor(row, cPing, colors::red);
    grid.setCellIcon(row, cPing, firewallIcon);
  } else {
    grid.setCell(row, cPing, std::to_string(reply.rtt) + " ms");
    grid.setCellColor(row, cPing, scale(reply.rtt));
  }
}

void modPingList::explainOnce() {
  if (!explanation_.empty() && !std::exchange(explained_, true)) {
    notices_.ShowPopMsg(explanation_);
  }
}

}  // namespace vantrel

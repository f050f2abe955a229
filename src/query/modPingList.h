// Round trips: a pass over the server list whenever its timer ticks, and the current server's.
//
// No more than one echo is under way. Events run while it is, so a ping that is asked for meanwhile begins once the
// echo is over.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/frmMain.h"
#include "platform/Icmp.h"
#include "platform/Loop.h"
#include "platform/Notices.h"
#include "query/SweepProgress.h"

namespace vantrel {

// What an echo brings back.
struct IcmpReply {
  int rtt = 0;  // milliseconds, or `noAnswer`
};

class modPingList {
 public:
  static constexpr int noAnswer = 65556;

  // Pings the whole list at each tick of the window's timer, or once all addresses are asked: a pass runs in whatever
  // waits at the time, and would hold them up. All of it must outlive this.
  modPingList(frmMain& window, Icmp& icmp, Loop& loop, Notices& notices, SweepProgress& progress);

  // Sends one echo and lets events in for a moment when it is over. The status, which says little: -1 where `ip` is no
  // dotted address and 0 where no echo could be sent at this time, with `reply` as it was. Where this user may send
  // none at all, that is no answer. REQUIRES: no echo is under way.
  int PingHost(const std::string& ip, const std::string& data, IcmpReply& reply);

  // Shows the round trip of the current server, unless it is another one, or none, when the answer comes.
  void PingCurrent();

  // The colour of a round trip.
  static Color scale(int rtt);

 private:
  void onceFree(std::function<void()> work);
  void pingCurrentNow(int asking);
  void startPass();
  void pingList();
  void pingRow(int row);
  void explainOnce();

  frmMain& window_;
  Icmp& icmp_;
  Loop& loop_;
  Notices& notices_;
  bool underWay_ = false;
  int asked_ = 0;                        // how often the current server's round trip was asked for
  std::optional<std::uint32_t> passOf_;  // generation of the list that a pass goes through
  std::string explanation_;              // why this user may send no echo; empty while he may
  bool explained_ = false;
  Connection tick_;
  Connection walkOver_;
  bool passWaits_ = false;  // for the end of the walk
};

}  // namespace vantrel

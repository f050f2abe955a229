// Tells an IRC channel where the user plays: one line when he joins a server, one when he is back. The IRC client does
// the sending; without one, or without the user's leave, nothing happens and nothing is said.
#pragma once

#include <string>

#include "core/Site.h"
#include "core/Version.h"
#include "core/frmMain.h"
#include "platform/Dde.h"

namespace vantrel {

class modMirc {
 public:
  // All of it must outlive this.
  modMirc(frmMain& window, Dde& mirc, const Site& site, const Version& version)
      : window_(window), mirc_(mirc), site_(site), version_(version) {}

  // `name`: of the server, as it came from it. `address`: "ip:port".
  void announceJoin(const std::string& name, const std::string& address);
  void announceBack();

 private:
  void announce(const std::string& text);

  frmMain& window_;
  Dde& mirc_;
  const Site& site_;
  Version version_;
};

}  // namespace vantrel

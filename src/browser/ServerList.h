// What the user does with the rows of the server list: makes one the current server or a favorite, and hides those that
// cannot be joined.
#pragma once

#include <vector>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "platform/Notices.h"
#include "platform/cPopupMenu.h"

namespace vantrel {

class ServerList {
 public:
  // All of it must outlive this.
  ServerList(frmMain& window, Commands& commands, Notices& notices, cPopupMenu& menu, Loop& loop);

 private:
  void makeCurrentServer(int row);
  void offerMenu();
  void addToFaves(int row);
  void hideOrShow();

  frmMain& window_;
  Commands& commands_;
  Notices& notices_;
  cPopupMenu& menu_;
  Loop& loop_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// Watches the game that was started last, and welcomes the user back when it has ended.
#pragma once

#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "join/modMirc.h"
#include "platform/Notices.h"
#include "platform/Processes.h"

namespace vantrel {

class GameWatch {
 public:
  // All of it must outlive the watch.
  GameWatch(frmMain& window, frmBuddies& buddies, Processes& processes, Notices& notices, modMirc& announcer);
  GameWatch(const GameWatch&) = delete;
  GameWatch& operator=(const GameWatch&) = delete;
  ~GameWatch() { letGo(); }

  // Watches this game from now on, whose handles are the watch's to close. One that was watched before goes on without.
  void watch(const GameProcess& game);

  // True until the end of the watched game has been noticed.
  bool running() const { return window_.tmrRunning.enabled(); }

 private:
  void look();
  void letGo();

  frmMain& window_;
  frmBuddies& buddies_;
  Processes& processes_;
  Notices& notices_;
  modMirc& announcer_;
  GameProcess game_;
  Connection tick_;
};

}  // namespace vantrel

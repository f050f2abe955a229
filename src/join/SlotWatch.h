// Waits for a free slot on a full server. A launch on one that its last reply shows as full asks first; while the user
// waits, auto refresh asks the server again and again, and the first reply with room for one more launches the game.
//
// The waiting ends with that launch, with one by hand, when another server becomes the current one, when auto join is
// turned off and when the user leaves the detail pages.
#pragma once

#include <vector>

#include "core/Commands.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "join/AutoSwitches.h"
#include "join/GameWatch.h"
#include "platform/Sound.h"
#include "query/DetailQuery.h"

namespace vantrel {

class SlotWatch {
 public:
  // All of it must outlive the watch.
  struct Context {
    frmMain& mainWindow;
    frmMsg& prompt;
    Commands& commands;
    Notices& notices;
    Sound& sound;
    GameWatch& game;
    DetailQuery& query;
    AutoSwitches& switches;
  };

  explicit SlotWatch(const Context& context);

  // To be asked before each launch, which ends the waiting. True when the launch is off: the prompt has come up, and
  // its "No" launches after all.
  bool holdBack();

 private:
  void connectPrompt();
  void connectStops();
  void answerYes();
  void answerNo();
  void closePrompt();
  void hear(const ServerLoad& load);
  void join();
  bool isCurrent(const ServerLoad& load) const;
  bool isFull() const { return isCurrent(last_) && last_.isFull(); }

  Context c_;
  ServerLoad last_;           // what the last reply said, of whichever server
  bool waiting_ = false;      // the current server is full, and the user wants to get in
  bool joining_ = false;      // a free slot is being told of
  bool launchesNow_ = false;  // a launch that nothing is to be asked about
  std::vector<Connection> connections_;
};

}  // namespace vantrel

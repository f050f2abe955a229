// The search for a player by a part of his name. It lives in the sweep: while `txtPlayer` holds a text, each player
// that a reply names is looked at, and the hits are listed in a window of their own.
#pragma once

#include <string>
#include <vector>

#include "core/Commands.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "platform/Dialogs.h"

namespace vantrel {

class PlayerSearch {
 public:
  // What the search works on; all of it must outlive it.
  struct Context {
    frmMain& mainWindow;
    frmPlayers& window;
    Commands& commands;
    Notices& notices;
    Dialogs& dialogs;
  };

  // Adds command 23, "Go!".
  explicit PlayerSearch(const Context& context);

  // Looks at a player of a reply; `address` is the server's "ip:port".
  void matchPlayer(const std::string& playerName, const std::string& address);

 private:
  void start();
  void pick();
  void takeServer();
  void showPlayer();

  Context c_;
  std::string picked_;  // the line whose server was asked last
  std::vector<Connection> connections_;
};

}  // namespace vantrel

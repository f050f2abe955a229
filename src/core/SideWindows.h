// The state of the windows beside the main one.
#pragma once

#include <array>
#include <string>

#include "core/WindowState.h"
#include "platform/Controls.h"
#include "platform/FavoritesList.h"
#include "platform/Timer.h"

namespace vantrel {

struct frmBuddies {
  enum Command : int { add = 0, remove = 1, find = 2 };

  frmBuddies() {
    cmdMenu[add].caption.set("Add");
    cmdMenu[remove].caption.set("Delete");
  }

  Field<bool> visible{false};
  Field<WindowState> windowState{WindowState::normal};
  Field<std::string> caption{"My Buddy List"};
  TextBox txtBuddy;  // the name to add or to look for
  std::array<Button, 3> cmdMenu;
  FavoritesList myFaves1;  // a buddy's name in `name`, the server where he was last seen in `hostname`

  Signal<> focusWanted;  // fired by the logic: the window comes to the front
  Signal<int> pressed;   // number of a button; fired by a view, as is `closed`
  Signal<> closed;
  Signal<> focusLeft;  // fired by the logic: the main window takes the focus
};

// The players that a search has found. A line is a name, a TAB and "ip:port".
struct frmPlayers {
  static constexpr const char* atRest = "Not querying servers.";

  frmPlayers() {
    lblStatus.caption.set(atRest);
    cmdShow.caption.set("Show Player");
    cmdShow.enabled.set(false);
  }

  Field<bool> visible{false};
  Field<std::string> caption{"      Vantrel - Player Search"};
  ListBox lstPlayers;
  Label lblSearchfor;
  Label lblStatus;
  Button cmdShow;  // "Show Player"

  Signal<> focusWanted;  // fired by the logic: the window comes to the front
  Signal<> lineClicked;  // behind the selection; fired by a view, as are the two below
  Signal<> showPressed;
  Signal<> closed;
};

// Asks whether to wait for a free slot on a server that is full.
struct frmMsg {
  static constexpr int soundDelay = 30;  // milliseconds behind the window's opening

  // `loop` must outlive the window.
  explicit frmMsg(Loop& loop) : tmr1(loop, soundDelay) {
    caption.set("Zorbel asks:");
    lblMsg.caption.set("Server is full. Would you like to Auto Join once a space is open?");
    cmdYes.caption.set("Yes");
    cmdNo.caption.set("No");
    cmdLaunch.caption.set("Launching Game...");
    cmdLaunch.visible.set(false);
    chkMsg.caption.set("Never AutoJoin (change in settings).");
  }

  Field<bool> visible{false};
  Field<std::string> caption;
  Label lblMsg;
  Button cmdYes;
  Button cmdNo;
  Button cmdLaunch;  // takes the place of the two others while the game is being launched
  CheckBox chkMsg;   // checked when the user never wants to be asked
  TextBox txtWav;    // path of the sound
  Timer tmr1;        // plays the sound once

  Signal<> yesClicked;  // these three are fired by a view
  Signal<> noClicked;
  Signal<> closed;
};

}  // namespace vantrel

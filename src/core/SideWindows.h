// The state of the windows beside the main one.
#pragma once

#include <string>

#include "core/WindowState.h"
#include "platform/Controls.h"
#include "platform/FavoritesList.h"
#include "platform/Timer.h"

namespace vantrel {

struct frmBuddies {
  Field<bool> visible{false};
  Field<WindowState> windowState{WindowState::normal};
  FavoritesList myFaves1;  // a buddy's name in `name`, the server where he was last seen in `hostname`
};

struct frmPlayers {
  Field<bool> visible{false};
  ListBox lstPlayers;  // the players found
  Label lblSearchfor;
  Label lblStatus;
};

struct frmMirror {
  Label lblMap;        // the map that is wanted, without ".map"; empty for none
  ListBox lstMirrors;  // base addresses of the map mirrors
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

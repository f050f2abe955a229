// The main window's state: its controls by name. Logic and view meet here and nowhere else.
#pragma once

#include <array>

#include "platform/Controls.h"
#include "platform/FavoritesList.h"
#include "platform/ServerGrid.h"
#include "platform/Timer.h"

namespace vantrel {

struct frmMain {
  // `loop` must outlive the window.
  explicit frmMain(Loop& loop);

  // The current server: the one that commands act on. Address and port are as the user may have typed them.
  TextBox txtIP;
  TextBox txtPort;

  // The server list and its running totals, in decimal; "0" at the start of a sweep.
  ServerGrid grdServers;
  Label lblCount;
  TextBox txtPlayers;
  TextBox txtCTF;
  TextBox txtSlayer;
  TextBox txtOther;
  Timer tmrPing;  // starts a pass of pings over the list

  // The name searched for during a sweep; empty for none.
  TextBox txtPlayer;

  // The favorites and their editor.
  FavoritesList myFaves1;
  TextBox txtID;
  TextBox txtServerName;
  TextBox txtIP2;
  TextBox txtPort2;
  ComboBox cmbGameType;
  TextBox txtPass;

  // One button a command, under the command's number.
  std::array<Button, 43> cmdMenu;

 private:
  Connection countOnNotice_;
};

}  // namespace vantrel

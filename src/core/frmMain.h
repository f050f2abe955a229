// The main window's state: its controls by name. Logic and view meet here and nowhere else.
#pragma once

#include <array>

#include "core/WindowState.h"
#include "platform/Controls.h"
#include "platform/FavoritesList.h"
#include "platform/ListView.h"
#include "platform/ServerGrid.h"
#include "platform/Timer.h"

namespace vantrel {

// Numbers of the main window's commands; each has the button of its number in `cmdMenu`.
namespace command {
enum Number : int {
  autoJoinOff = 0,
  showCurrentGame = 1,
  showPlayers = 2,
  showMisc = 3,
  showVehicles = 4,
  showSettings = 5,
  showFaves = 6,
  showTools = 7,
  toggleBuddies = 8,
  showServers = 9,
  autoJoinOn = 10,
  clearServer = 11,
  queryServer = 12,
  exportServers = 14,
  locateGame = 15,
  showAbout = 16,
  launchGame = 18,
  exportSummary = 19,
  findPlayer = 23,
  addFave = 24,
  updateFave = 25,
  clearFaveEditor = 26,
  setFavePicture = 27,
  editFave = 28,
  autoRefreshOn = 30,
  autoRefreshOff = 31,
  getServerList = 32,
  deleteFave = 34,
  removeFavePicture = 36,
  launchTool = 37,
  addCurrentFave = 39,
  startupHeading = 40,
  downloadMap = 41,
  explainBuddies = 42,
};
}  // namespace command

// Numbers of the boxes that labels stand in.
namespace infoBox {
enum Number : int {
  currentServer,
  search,
  totals,
  listTitle,
  summary,
  refresh,
  game,
  startup,
  queries,
  announcements,
  hide,
  chat,
  count,
};
}  // namespace infoBox

struct frmMain {
  // `loop` must outlive the window.
  explicit frmMain(Loop& loop);

  // The window itself. Width and Height are the outer ones, in twips.
  Field<std::string> title;
  Field<bool> visible{false};
  Field<WindowState> windowState{WindowState::normal};
  Field<Color> backColor{colors::systemFace};
  float Width = 0;
  float Height = 0;
  Signal<> focusWanted;  // fired by the logic: the window comes to the front
  Signal<> resized;      // fired by a view, behind a change of its size or state

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

  Label lblPlayers;  // over the number of players

  // The name searched for during a sweep; empty for none.
  TextBox txtPlayer;

  // The pages. PicBG lies behind all of them but the server list.
  Panel PicBG;
  Panel PicServers;
  Panel PicChat;
  Panel picLaunch;  // never shown
  Panel PicAbout;
  Label lblVer;

  // The detail pages: the panel that they share, the list of the teams beside it and a list each.
  Panel picScore;
  ListView ListView1;  // Misc.
  ListView ListView2;  // Players
  ListView ListView3;  // the teams
  ListView ListView4;  // Current Game
  ListView ListView5;  // Vehicles
  Label lblData;       // name of the server on show
  TextBox txtPing;
  Timer tmrRefresh;  // asks the current server again and again

  // The settings page and the help beside it.
  Panel picSettings;
  Panel picRef;
  Label txtFAQ;
  TextBox txtHaloPath;  // folder of the game; empty or "Not Found" while it is not known
  Label lblExeStatus;
  Picture picExeStatus;
  std::array<CheckBox, 7> chkOptions;
  CheckBox chkSplash;
  CheckBox chkOldSplash;
  TextBox mircChan;
  ComboBox cmbVid;
  ComboBox cmbShowTab;
  ComboBox cmbTab;  // names of pages; nothing hangs on it
  Picture picJoin;
  Picture picRefresh;
  Label lblThemes;         // beside the themes
  ComboBox cmbThemes;      // names of colour themes; nothing hangs on it
  Button cmdColors;        // opens the colours' window
  Signal<> colorsClicked;  // fired by a view: cmdColors

  // The tools page.
  Panel picTools;
  FileListBox lstApps;
  TextBox txtExe;        // path of the selected tool; empty until one is picked
  TextBox txtParamProc;  // the command line of every tool

  // The game that is being watched, in decimal; empty while none is.
  Label lblProcess;
  Label lblThread;
  Label lblProcessID;
  Label lblThreadID;
  Timer tmrRunning;  // looks whether the game has ended

  // The favorites and their editor.
  Panel picFaves;
  Panel picFaves2;
  FavoritesList myFaves1;
  TextBox txtID;
  TextBox txtServerName;
  TextBox txtIP2;
  TextBox txtPort2;
  ComboBox cmbGameType;
  TextBox txtPass;
  ListBox List1;  // about the selected favorite, to be read only

  // Captions and single values, by number.
  std::array<Label, 48> lblText;
  std::array<Label, 13> lblText2;

  // The boxes that labels stand in, and a line.
  std::array<Shape, infoBox::count> shpInfo;
  Shape Line1;

  // One button a command, under the command's number.
  std::array<Button, 43> cmdMenu;

 private:
  void nameButtons();
  void nameLabels();
  void fillLists();
  void pairOptions(command::Number one, command::Number other);
  void releaseWhenPressed(Button& pressed, Button& released);

  std::vector<Connection> connections_;
};

}  // namespace vantrel

#include "core/frmMain.h"

#include <string>
#include <utility>

namespace vantrel {
namespace {

constexpr int pingDelay = 11000;       // milliseconds
constexpr int refreshInterval = 5000;  // milliseconds
constexpr int watchInterval = 2000;    // milliseconds

// The size that the window is drawn for, in twips.
constexpr float designWidth = 10065;
constexpr float designHeight = 8295;

constexpr int playersScore = 2;  // the column that the players are sorted by first

using Caption = std::pair<int, const char*>;

constexpr Caption buttonCaptions[] = {
    {0, "Disable"},
    {1, "Current Game"},
    {2, "Players"},
    {3, "Misc."},
    {4, "Vehicles"},
    {5, "Settings"},
    {6, "Faves"},
    {7, "Tools"},
    {9, "Servers"},
    {10, "Full Servers"},
    {11, "clear"},
    {12, "Query"},
    {13, "Save"},
    {14, "Export to File"},
    {15, "Locate..."},
    {16, "About"},
    {17, "Rcon  "},
    {18, "Launch"},
    {19, "Export Game Summary "},
    {20, "Query"},
    {23, "Go!"},
    {24, "Add"},
    {25, "Update"},
    {27, "Set Background"},
    {28, "Edit"},
    {30, "On"},
    {31, "Off"},
    {32, "Get  Halo CE Server List"},
    {33, "Add "},
    {34, "Delete Favorite"},
    {35, "Clear"},
    {36, "No Pic"},
    {37, "Launch Tool"},
    {39, "Favorite"},
    {40, "Optional Startup Parameters"},
    {41, "Download"},
    {42, "Add Players to your Buddy List"},
};

// Buttons that no command stands behind, and that have no place in the window.
constexpr int unusedButtons[] = {13, 17, 20, 21, 22, 29, 33, 35, 38};

constexpr Caption textCaptions[] = {
    {1, "Map Name:"},
    {2, "Game Type:"},
    {3, "Game Variant:"},
    {4, "[...]"},
    {5, "Players:"},
    {6, "[...]"},
    {7, "[...]"},
    {8, "[...]"},
    {9, "[...]"},
    {10, "[...]"},
    {11, "Team Killing:"},
    {12, "Server IP:"},
    {13, "Port:"},
    {14, "Player:"},
    {15, "Halo CE folder:"},
    {16, "Command Line Parameters:"},
    {17, "Show:"},
    {18, "after query"},
    {19, "When Server is Full:"},
    {20, "Auto Join Server"},
    {21, "Auto Refresh Query"},
    {22, "Channel:"},
    {26, "ID:"},
    {27, "Server Name:"},
    {28, "Server IP:"},
    {29, "Port:"},
    {30, "Game Type:"},
    {31, " Password?:"},
};

constexpr Caption headings[] = {
    {1, "  Game Summary"}, {2, "Halo CE"},          {3, "Queries"},          {4, "Announcements"},
    {5, "At start"},       {6, "Favorites Editor"}, {9, "Vantrel CE Tools"}, {11, "Map Download:"},
};

constexpr const char* optionCaptions[] = {
    "-screenshot",
    "-console",
    "-nojoystick",
    "-novideo",
    "Hide Empty / Full / Locked Servers",
    "Send Server Information to mIRC channel",
    "Chat",
};

}  // namespace

frmMain::frmMain(Loop& loop)
    : Width(designWidth),
      Height(designHeight),
      tmrPing(loop, pingDelay),
      ListView1({{"Misc. Info", 120}, {"Server Value", 0}}, {1800, 1080, 4125, 4755}),
      ListView2({{"Player", 150}, {"Score", 55}, {"Team", 0}}, {600, 2160, 4125, 4755}),
      ListView3({{"Teams", 80}, {"Score", 0}}, {6060, 4500, 3855, 900}),
      ListView4({{"Current Game", 120}, {"Server Value", 0}}, {600, 2160, 4125, 4755}),
      ListView5({{"Vehicles", 120}, {"Server Value", 0}}, {600, 2160, 4170, 1275}),
      tmrRefresh(loop, refreshInterval),
      tmrRunning(loop, watchInterval) {
  PicBG.place.set({0, 1400, 0, 0});
  picScore.place.set({5880, 1320, 4215, 6735});
  picFaves2.place.set({5880, 1320, 4215, 4800});
  PicServers.place.set({0, 1400, designWidth, 0});
  for (TextBox* const total : {&txtPlayers, &txtCTF, &txtSlayer, &txtOther}) {
    total->text.set("0");
  }
  ListView2.sort.set({.column = playersScore});
  txtParamProc.text.set("1.00");
  lblData.caption.set("Vantrel CE");
  lblText2[0].visible.set(false);
  mircChan.enabled.set(false);
  mircChan.toolTip.set("Enable mIRC message to type channel name!");
  nameButtons();
  nameLabels();
  fillLists();
  pairOptions(command::autoJoinOn, command::autoJoinOff);
  pairOptions(command::autoRefreshOn, command::autoRefreshOff);
  connections_.push_back(grdServers.notified.connect(
      [this] { lblCount.caption.set("Server Count: " + std::to_string(grdServers.rowCount())); }));
}

void frmMain::nameButtons() {
  for (const auto& [number, caption] : buttonCaptions) {
    cmdMenu[static_cast<std::size_t>(number)].caption.set(caption);
  }
  for (const int number : unusedButtons) {
    cmdMenu[static_cast<std::size_t>(number)].visible.set(false);
  }
  for (const int number : {17, +command::startupHeading}) {
    cmdMenu[static_cast<std::size_t>(number)].enabled.set(false);
  }
  cmdMenu[command::explainBuddies].visible.set(false);
}

void frmMain::nameLabels() {
  for (const auto& [number, caption] : textCaptions) {
    lblText[static_cast<std::size_t>(number)].caption.set(caption);
  }
  for (const auto& [number, caption] : headings) {
    lblText2[static_cast<std::size_t>(number)].caption.set(caption);
  }
  for (std::size_t i = 0; i < chkOptions.size(); ++i) {
    chkOptions[i].caption.set(optionCaptions[i]);
  }
  lblPlayers.caption.set("Players");
  lblThemes.caption.set("Vantrel CE Color Themes:");
  cmdColors.caption.set("Colors...");
  chkSplash.caption.set("No splash screen");
  chkOldSplash.caption.set("Old splash screen");
}

void frmMain::fillLists() {
  cmbShowTab.items.set({"Current Game", "Players", "Vehicles", "Misc."});
  cmbShowTab.text.set("Players");
  cmbGameType.items.set({"Undefined", "CTF", "Slayer", "Juggernaut", "King", "Crazy King", "Race", "Oddball", "Assault",
                         "Team Slayer", "Team Oddball", "Team Race", "Custom Mod", "Other"});
  cmbGameType.text.set("Undefined");
  cmbThemes.items.set({"Default Color Theme", "-=[ Blue Lagoon ]=-", "-=[ Bloody Red Babies ]=-"});
  cmbThemes.text.set("Default Color Theme");
  picJoin.image.set("off");
  picRefresh.image.set("off");
  picExeStatus.image.set("off");
}

void frmMain::pairOptions(command::Number one, command::Number other) {
  Button& first = cmdMenu[static_cast<std::size_t>(one)];
  Button& second = cmdMenu[static_cast<std::size_t>(other)];
  second.value.set(1);
  releaseWhenPressed(first, second);
  releaseWhenPressed(second, first);
}

// Of two options at most one is pressed.
void frmMain::releaseWhenPressed(Button& pressed, Button& released) {
  connections_.push_back(pressed.value.changed.connect([&pressed, &released] {
    if (pressed.value.get() != 0) {
      released.value.set(0);
    }
  }));
}

}  // namespace vantrel

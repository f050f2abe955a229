#include "browser/ServerList.h"

#include <string>

#include "core/FailureStyles.h"
#include "core/PumpWait.h"
#include "core/modSGrid.h"

namespace vantrel {
namespace {

constexpr std::size_t hideOption = 4;
constexpr int pauseBeforeFaves = 10;  // milliseconds

// The filter knows the servers for sixteen players only: a full or empty one of another size stays.
constexpr const char* full = "16/16";
constexpr const char* empty = "0/16";

}  // namespace

ServerList::ServerList(frmMain& window, Commands& commands, Notices& notices, cPopupMenu& menu, Loop& loop)
    : window_(window), commands_(commands), notices_(notices), menu_(menu), loop_(loop) {
  connections_.push_back(window.grdServers.rowSelected.connect([this](int row, int) { makeCurrentServer(row); }));
  connections_.push_back(window.grdServers.mouseButton.connect([this](MouseButton button) {
    if (button == MouseButton::right) {
      offerMenu();
    }
  }));
  connections_.push_back(window.chkOptions[hideOption].value.changed.connect([this] { hideOrShow(); }));
}

void ServerList::makeCurrentServer(int row) {
  ServerGrid& grid = window_.grdServers;
  if (grid.columnCount() < 1) {
    return;
  }
  grid.redraw.set(false);
  const SkippingSteps step;
  step([&] { window_.txtIP.text.set(grid.cellText(row, cIP)); });
  step([&] { window_.txtPort.text.set(grid.cellText(row, cPort)); });
  grid.redraw.set(true);
}

// The row is the one that is current when the user has chosen: meanwhile the list may have become another one.
void ServerList::offerMenu() {
  if (window_.grdServers.rowCount() > 0 && menu_.Popup({"Add Server to Favorites"}) == 1) {
    addToFaves(window_.grdServers.currentRow());
  }
}

void ServerList::addToFaves(int row) {
  const ServerGrid& grid = window_.grdServers;
  if (grid.cellText(row, cIP).empty()) {
    notices_.popUpBalloon("Could not add server to favorites. There is no IP.", "");
    return;
  }
  for (TextBox* const box : {&window_.txtIP, &window_.txtIP2}) {
    box->text.set(grid.cellText(row, cIP));
  }
  for (TextBox* const box : {&window_.txtPort, &window_.txtPort2}) {
    box->text.set(grid.cellText(row, cPort));
  }
  window_.txtServerName.text.set(grid.cellText(row, cName));
  PumpWait(loop_, pauseBeforeFaves);
  commands_.clickIt(command::showFaves);
  commands_.clickIt(command::addFave);
}

// Acts on the rows that there are, once: those that come later show until the user asks again.
void ServerList::hideOrShow() {
  ServerGrid& grid = window_.grdServers;
  const bool show = !window_.chkOptions[hideOption].isChecked();
  int hidden = 0;
  const auto setRow = [&](int row) {
    hidden += grid.rowVisible(row) ? 1 : 0;
    grid.setRowVisible(row, show);
  };
  grid.redraw.set(false);
  for (int row = 1; row <= grid.rowCount(); ++row) {
    if (grid.cellText(row, cPassword) == "Yes") {
      grid.setRowVisible(row, false);
      ++hidden;
      grid.setRowVisible(row, show);
    }
    const std::string& players = grid.cellText(row, cPlayers);
    if (players == full || players == empty) {
      setRow(row);
    }
  }
  const int count = grid.rowCount() - (show ? 0 : hidden);
  window_.lblCount.caption.set("Server Count: " + std::to_string(count));
  grid.redraw.set(true);
}

}  // namespace vantrel

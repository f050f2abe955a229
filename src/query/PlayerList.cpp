#include "query/PlayerList.h"

#include "core/FailureStyles.h"

namespace vantrel {

PlayerList::PlayerList(const StoreContext& context, modFavesIni& stores, cPopupMenu& menu)
    : c_(context), stores_(stores), menu_(menu) {
  ListView& list = c_.mainWindow.ListView2;
  connections_.push_back(list.columnClicked.connect([this](int column) { sortBy(column); }));
  connections_.push_back(
      list.mouseButton.connect([this](MouseButton button) { stopSilently([&] { offerMenu(button); }); }));
}

// The order goes round with every click, also on another column.
void PlayerList::sortBy(int column) {
  Field<ListSort>& sort = c_.mainWindow.ListView2.sort;
  const bool descending = sort.get().order == SortOrder::descending;
  sort.set({column, descending ? SortOrder::ascending : SortOrder::descending, true});
}

// The player is the one who is selected when the user has chosen. A reply that has filled the list anew meanwhile has
// taken the selection away; then it is the one on whom the menu was opened.
void PlayerList::offerMenu(MouseButton button) {
  if (c_.mainWindow.ListView2.rowCount() == 0) {
    c_.mainWindow.cmdMenu[command::explainBuddies].visible.set(true);
  }
  const std::string before = selectedName();
  if (button != MouseButton::right || menu_.Popup({"Add Player to Buddy List"}) != 1) {
    return;
  }
  const std::string now = selectedName();
  if (!now.empty() || !before.empty()) {
    addBuddy(now.empty() ? before : now);
  }
}

std::string PlayerList::selectedName() const {
  const ListView& list = c_.mainWindow.ListView2;
  return list.cell(list.selectedRow(), 1);
}

void PlayerList::addBuddy(const std::string& name) {
  if (name.find("0 Players") != std::string::npos) {
    c_.notices.popUpBalloon("Could not add \"" + name + "\" players to your list.", "Could Not Add Buddy");
    return;
  }
  const std::string& ip = c_.mainWindow.txtIP.text.get();
  const std::string& port = c_.mainWindow.txtPort.text.get();
  stores_.AddBuddy(name, ip.empty() || port.empty() ? std::string() : ip + ":" + port);
  c_.buddies.visible.set(true);
  c_.buddies.myFaves1.clear();
  stores_.LoadBuddies();
}

}  // namespace vantrel

#include "query/PlayerList.h"

#include <utility>

#include "core/FailureStyles.h"

namespace vantrel {

PlayerList::PlayerList(frmMain& window, Notices& notices, cPopupMenu& menu, AddPlayer addPlayer)
    : window_(window), notices_(notices), menu_(menu), addPlayer_(std::move(addPlayer)) {
  ListView& list = window_.ListView2;
  connections_.push_back(list.columnClicked.connect([this](int column) { sortBy(column); }));
  connections_.push_back(
      list.mouseButton.connect([this](MouseButton button) { stopSilently([&] { offerMenu(button); }); }));
}

// The order goes round with every click, also on another column.
void PlayerList::sortBy(int column) {
  Field<ListSort>& sort = window_.ListView2.sort;
  const bool descending = sort.get().order == SortOrder::descending;
  sort.set({column, descending ? SortOrder::ascending : SortOrder::descending, true});
}

// The player is the one who is selected when the user has chosen. A reply that has filled the list anew meanwhile has
// taken the selection away; then it is the one on whom the menu was opened.
void PlayerList::offerMenu(MouseButton button) {
  if (window_.ListView2.rowCount() == 0) {
    window_.cmdMenu[command::explainBuddies].visible.set(true);
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
  const ListView& list = window_.ListView2;
  return list.cell(list.selectedRow(), 1);
}

void PlayerList::addBuddy(const std::string& name) {
  if (name.find("0 Players") != std::string::npos) {
    notices_.popUpBalloon("Could not add \"" + name + "\" players to your list.", "Could Not Add Buddy");
    return;
  }
  const std::string& ip = window_.txtIP.text.get();
  const std::string& port = window_.txtPort.text.get();
  addPlayer_(name, ip.empty() || port.empty() ? std::string() : ip + ":" + port);
}

}  // namespace vantrel

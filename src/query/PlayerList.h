// What the user does with the list of the players on show: sorts it, and takes a player into the buddy list.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/frmMain.h"
#include "platform/Notices.h"
#include "platform/cPopupMenu.h"

namespace vantrel {

class PlayerList {
 public:
  using AddPlayer = std::function<void(const std::string& name, const std::string& lastserver)>;

  // All of it must outlive this. `addPlayer` makes a player a buddy.
  PlayerList(frmMain& window, Notices& notices, cPopupMenu& menu, AddPlayer addPlayer);

 private:
  void sortBy(int column);
  void offerMenu(MouseButton button);
  void addBuddy(const std::string& name);
  std::string selectedName() const;

  frmMain& window_;
  Notices& notices_;
  cPopupMenu& menu_;
  AddPlayer addPlayer_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// What the user does with the list of the players on show: sorts it, and takes a player into the buddy list.
#pragma once

#include <string>
#include <vector>

#include "core/frmMain.h"
#include "core/modFavesIni.h"
#include "platform/cPopupMenu.h"

namespace vantrel {

class PlayerList {
 public:
  // All of it must outlive this.
  PlayerList(const StoreContext& context, modFavesIni& stores, cPopupMenu& menu);

 private:
  void sortBy(int column);
  void offerMenu(MouseButton button);
  void addBuddy(const std::string& name);
  std::string selectedName() const;

  StoreContext c_;
  modFavesIni& stores_;
  cPopupMenu& menu_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

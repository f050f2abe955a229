// What a halo:// link asks for: a map to install, a player to look for, a server to join or to show, a buddy to add.
#pragma once

#include <functional>
#include <string>

#include "core/Commands.h"
#include "core/MirrorWindows.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"

namespace vantrel {

class LinkHandler {
 public:
  // What it works on; all of it must outlive it.
  struct Context {
    frmMain& mainWindow;
    frmMirror& mirror;
    frmPlayers& players;
    frmBuddies& buddies;
    Commands& commands;
    Notices& notices;
    std::function<void(const std::string& map)> showMirrors;  // for a map that is wanted
    std::function<void()> clickBuddy;                         // adds the name in `txtBuddy`
  };

  explicit LinkHandler(const Context& context) : c_(context) {}

  // Acts on a link, or on a whole command line, which may be empty. Marks that tell what it asks for are found anywhere
  // in it; of several of one kind the last one counts.
  void handleLink(std::string link);

 private:
  void installMap(const std::string& name);
  void findPlayer(std::string name);
  void join(const std::string& link);
  void addBuddy(const std::string& name);
  void query(const std::string& link);

  Context c_;
};

}  // namespace vantrel

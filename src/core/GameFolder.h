// The folder of the game: how it stands with it on the settings page, and the dialog that finds it.
#pragma once

#include <string>

#include "core/frmMain.h"
#include "core/modReg.h"
#include "platform/Dialogs.h"

namespace vantrel {

class GameFolder {
 public:
  // All of it must outlive this.
  GameFolder(frmMain& window, modReg& registry, Dialogs& dialogs)
      : window_(window), registry_(registry), dialogs_(dialogs) {}

  // Asks the user for the game's program and keeps the folder it is in. Nothing changes when the user cancels.
  void locate();

  // "Set." or what to do, from what `txtHaloPath` holds, which loses its warning colour when it is a folder.
  void showStatus();

 private:
  frmMain& window_;
  modReg& registry_;
  Dialogs& dialogs_;
};

}  // namespace vantrel

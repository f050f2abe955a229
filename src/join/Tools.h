// The other programs that the user has put into the folder "plugins" beside this one. Each is started as a process of
// its own, knows nothing of the servers, and nobody watches it.
#pragma once

#include <string>

#include "core/AppFolder.h"
#include "core/Commands.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "platform/Files.h"
#include "platform/Processes.h"

namespace vantrel {

class Tools {
 public:
  // All of it must outlive the tools.
  struct Context {
    frmMain& mainWindow;
    frmBuddies& buddies;
    Commands& commands;
    Notices& notices;
    const Files& files;
    const AppFolder& folder;
    Processes& processes;
  };

  // Adds command 37, "Launch Tool".
  explicit Tools(const Context& context);

  // Fills the list from the folder; a tool that is put there later shows at the next start. Without the folder there is
  // nothing to start.
  void LoadTools();

 private:
  void LaunchTool();

  Context c_;
  Connection clicked_;
};

}  // namespace vantrel

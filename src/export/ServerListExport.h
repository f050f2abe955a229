// The server list as a page of its own, with a link for each server.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Commands.h"
#include "core/Site.h"
#include "core/Version.h"
#include "core/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Loop.h"
#include "platform/Shell.h"

namespace vantrel {

class ServerListExport {
 public:
  // What it works on; all of it must outlive it.
  struct Context {
    Loop& loop;
    frmMain& mainWindow;
    Commands& commands;
    Dialogs& dialogs;
    Files& files;
    Shell& shell;
    const Site& site;
    Version version;
    std::function<std::vector<int>()> rowsInOrder;  // the numbers of all rows as they are shown
  };

  // Adds command 14.
  explicit ServerListExport(const Context& context);

  void exportServerList();

 private:
  std::string page() const;
  std::string serverRow(int number, int row) const;

  Context c_;
};

}  // namespace vantrel

// The view of the one server on show: its lists, its labels and the window's title.
#pragma once

#include <string>

#include "core/Commands.h"
#include "core/Version.h"
#include "core/frmMain.h"

namespace vantrel {

class DetailView {
 public:
  // Adds command 11, "clear", to `commands`, and has the view emptied when a command meets a connection that was reset.
  // Both must outlive this.
  DetailView(frmMain& window, Commands& commands, const Version& version);

  // Empties the lists; the labels of the summary keep what they show.
  void ClearDetail();
  // Empties all of it.
  void ResetDetail();
  // Names a server in the window's title; `server`: its name and how many play there.
  void showTitle(const std::string& server) const;

 private:
  void clearListsAndName();

  frmMain& window_;
  Version version_;
};

}  // namespace vantrel

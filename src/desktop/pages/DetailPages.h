// The pages of the server on show: a list with its title on the left, the summary of the game on the right, and the
// teams in the summary's lower half. They share one background and lie on it side by side, as children of the window.
#pragma once

#include "core/Commands.h"
#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"
#include "desktop/controls/ListTable.h"
#include "desktop/pages/SummaryPanel.h"

namespace vantrel {

class DetailPages {
 public:
  // All three must outlive this.
  DetailPages(frmMain& window, Commands& commands, QWidget* parent);

 private:
  ListTable* addList(ListView& list, const char* name, const QString& accessibleName, QWidget* parent);
  void makeTitle(QWidget* parent);
  QWidget* makeBuddyButton(Commands& commands, QWidget* parent);

  frmMain& window_;
  Bindings bindings_;
};

}  // namespace vantrel

// The page of the other programs that can be started from here, or, while there are none, of how they get here.
#pragma once

#include "desktop/pages/PagePanel.h"

namespace vantrel {

class ToolsPage : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the page.
  ToolsPage(frmMain& window, Commands& commands, QWidget* parent);

 private:
  // What stands in the list while it is empty.
  QWidget* makeHint(FileListBox& list, QWidget* parent);
  QWidget* makePath(FileListBox& list, QWidget* parent);
};

}  // namespace vantrel

// The page of the other programs that can be started from here.
#pragma once

#include "desktop/pages/PagePanel.h"

namespace vantrel {

class ToolsPage : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the page.
  ToolsPage(frmMain& window, Commands& commands, QWidget* parent);
};

}  // namespace vantrel

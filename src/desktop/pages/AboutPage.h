// The page that tells what the program is, in which version and under which licence.
#pragma once

#include "desktop/pages/PagePanel.h"

namespace vantrel {

class AboutPage : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the page.
  AboutPage(frmMain& window, Commands& commands, QWidget* parent);
};

}  // namespace vantrel

// The page that tells what the program is, in which version and under which licence.
#pragma once

#include "appearance/ZorbelLabel.h"
#include "desktop/pages/PagePanel.h"

namespace vantrel {

class AboutPage : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the page.
  AboutPage(frmMain& window, Commands& commands, QWidget* parent);

 private:
  QWidget* makeFrame(ZorbelLabel& frame, const char* name, const QString& caption, const QString& text);

  ZorbelLabel ZorbelLabel1_;
  ZorbelLabel ZorbelLabel2_;
};

}  // namespace vantrel

// The help beside a page: a text to be read, with headings. Nothing in it is markup.
#pragma once

#include <QTextEdit>

#include "desktop/pages/PagePanel.h"

namespace vantrel {

class HelpPanel : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the panel.
  HelpPanel(frmMain& window, Commands& commands, QWidget* parent);

 private:
  void showText(const QString& text);

  QTextEdit* text_;
};

}  // namespace vantrel

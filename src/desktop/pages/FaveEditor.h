// The editor beside the favorites: the boxes of one favorite, what is known about it, and the buttons that keep it.
#pragma once

#include "desktop/pages/PagePanel.h"
#include "desktop/pages/PageParts.h"

class QBoxLayout;
class QListWidget;

namespace vantrel {

class FaveEditor : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the editor.
  FaveEditor(frmMain& window, Commands& commands, QWidget* parent);

 private:
  void addBoxes(QBoxLayout& column, QWidget* card);
  TextField* makePassword(QWidget* card);
  QListWidget* makeLines(QWidget* card);
  QBoxLayout* makeButtons(QWidget* card);

  frmMain& window_;
  PageParts parts_;
};

}  // namespace vantrel

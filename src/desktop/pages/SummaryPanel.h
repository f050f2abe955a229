// The summary of the game on the server on show: what is played, and beneath the teams what can be done about it.
#pragma once

#include "core/Commands.h"
#include "core/frmMain.h"
#include "desktop/pages/PagePanel.h"

class QBoxLayout;
class QLabel;

namespace vantrel {

class SummaryPanel : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the panel.
  SummaryPanel(frmMain& window, Commands& commands, QWidget* parent);

 private:
  QWidget* makeFacts();
  QWidget* makeHeadingBand();
  QWidget* makeColumns(QWidget* box);
  void addFact(QBoxLayout& captions, QBoxLayout& values, int caption, int value);
  void addPing(QBoxLayout& captions, QBoxLayout& values);
  QWidget* makeActions();
  QBoxLayout* makeMapRow();
  QBoxLayout* makeRefreshRow();

  frmMain& window_;
  Commands& commands_;
};

}  // namespace vantrel

// The view of frmMirror: the mirrors, and the progress of a download.
#pragma once

#include "core/MirrorWindows.h"
#include "desktop/window/SideWindow.h"

class QBoxLayout;

namespace vantrel {

class LvButton;
class MirrorListView;

class MirrorWindow : public SideWindow {
  Q_OBJECT

 public:
  // `model` must outlive the window. It comes up beside `owner`.
  MirrorWindow(frmMirror& model, QWidget* owner);

 private:
  QBoxLayout* makeWanted();
  QBoxLayout* makeList();
  LvButton* makeMove(const QString& icon, const char* name, const QString& text, MirrorCommand command);
  QBoxLayout* makeListButtons();
  QBoxLayout* makeSite();
  QBoxLayout* makeCache();
  QWidget* makeNotice();
  QBoxLayout* makeProgress();
  QBoxLayout* makeTransferButtons();
  QPushButton* makePress(Button& model, const char* name, char mnemonic, MirrorCommand command);

  frmMirror& model_;
  MirrorListView* list_ = nullptr;
};

}  // namespace vantrel

// The view of frmBuddies: a box for a name with its buttons, and the list of the buddies below it.
#pragma once

#include "core/SideWindows.h"
#include "desktop/window/SideWindow.h"

class QBoxLayout;

namespace vantrel {

class BuddiesWindow : public SideWindow {
  Q_OBJECT

 public:
  // `model` must outlive the window. It comes up beside `owner`, which takes the focus when the model says so.
  BuddiesWindow(frmBuddies& model, QWidget* owner);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QBoxLayout* makeName();
  QBoxLayout* makeHeader();
  QWidget* makeList();
  void bindState(QWidget* owner);

  frmBuddies& model_;
};

}  // namespace vantrel

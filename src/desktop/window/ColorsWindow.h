// The view of frmColors: the roles, the colour being edited in all its forms, and what it can be picked from.
#pragma once

#include "core/frmColors.h"
#include "desktop/window/SideWindow.h"

class QBoxLayout;
class QListWidget;

namespace vantrel {

class ColorsWindow : public SideWindow {
  Q_OBJECT

 public:
  // `model` must outlive the window. It comes up beside `owner`.
  ColorsWindow(frmColors& model, QWidget* owner);

 private:
  void addMenu(QBoxLayout& column);
  QBoxLayout* makeRoles();
  QWidget* makeCurrent();
  QWidget* makeViews();
  QBoxLayout* makeBoxes();
  void addBox(QBoxLayout& row, const char* name, const QString& caption, TextBox& model);
  QBoxLayout* makePickers();
  QBoxLayout* makeButtons();
  QPushButton* makePress(Button& model, const char* name, char mnemonic, ColorCommand command);

  frmColors& model_;
};

}  // namespace vantrel

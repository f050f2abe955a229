// The main window on the screen: it shows a frmMain and forwards what the user does.
#pragma once

#include <QWidget>
#include <vector>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "query/SweepProgress.h"

class QBoxLayout;
class QLabel;

namespace vantrel {

class MainWindow : public QWidget {
 public:
  // All three must outlive the window.
  MainWindow(frmMain& model, Commands& commands, SweepProgress& progress);

  // The user has closed the window.
  Signal<> closed;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* makeHeader();
  QWidget* makeFooter(SweepProgress& progress);
  void addTotal(QBoxLayout& row, const char* name, const QString& caption, TextBox& model);

  frmMain& model_;
  Commands& commands_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// The main window on the screen: it shows a frmMain and forwards what the user does. Each page is a widget of its own;
// the window puts them on top of each other in the order that their overlaps ask for, and keeps its own size and state
// and those of the model in step.
#pragma once

#include <QWidget>
#include <memory>

#include "core/Commands.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"
#include "desktop/pages/DetailPages.h"
#include "query/SweepProgress.h"

namespace vantrel {

class FocusKeeper;
class HeaderStrip;
class ServerPage;

class MainWindow : public QWidget {
  Q_OBJECT

 public:
  // All four must outlive the window. It is on the screen when the model is visible.
  MainWindow(frmMain& model, Commands& commands, SweepProgress& progress, frmMsg& question);
  ~MainWindow() override;

  ServerPage& serverPage() { return *serverPage_; }

  // The user, or the end of the desktop's session, has closed the window.
  Signal<> closed;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void makePages(Commands& commands, frmMsg& question);
  void takeFirstSize();
  void noteOuterSize();
  void bindWindow();
  void applyState();
  void reportSoon();
  void reportSize();
  QWidget* firstOfPage();

  frmMain& model_;
  HeaderStrip* header_;
  ServerPage* serverPage_;
  QWidget* backdrop_;
  std::unique_ptr<DetailPages> details_;
  FocusKeeper* focusKeeper_;
  bool reportWaits_ = false;  // the model has yet to be told of a size or a state
  Bindings bindings_;
};

}  // namespace vantrel

// The program's icon in the tray: the minimised main window goes there and comes back from there. Where the desktop has
// no tray the window is minimised as windows are, and it comes back when the tray goes away.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/frmMain.h"
#include "platform/Notices.h"
#include "platform/Tray.h"

namespace vantrel {

// What the tray works with; all of it must outlive modTray.
struct TrayContext {
  Tray& tray;
  frmMain& mainWindow;
  Notices& notices;
  std::function<void()> about;  // shows what the program is, in the main window
  std::function<void()> exit;   // closes the main window, and the program with it
};

class modTray {
 public:
  enum Entry : int { mnuRestore = 1, mnuAbout = 2, mnuExit = 3 };
  // What the minimised window does.
  enum Behaviour : int { asWindowsDo = 0, hideInTray = 3 };

  explicit modTray(const TrayContext& context);

  // The main window has loaded: the icon comes up.
  void load();
  // The program ends: the icon goes, and the window is left as it is.
  void release();

  // Brings the main window back to the front, as it was before it was minimised.
  void restore();
  bool isInTray() const { return inTray_; }

  // These stand on a panel that is never shown.
  CheckBox chkTray;  // whether the icon is there
  CheckBox chkMin;   // whether the minimised window goes into the tray
  CheckBox chkPersistent;
  TextBox txtTip;
  ListBox lstTray;  // what the mouse did with the icon

  // What a click on the list does: its last line is selected.
  void clickList() { lstTray.select(lstTray.count() - 1); }

 private:
  void clickTray();
  void clickMin();
  void clickPersistent();
  void refreshed();
  void choose(int entry);
  void note(TrayButton button, const char* deed);
  void followWindow();
  void comeBack();

  TrayContext c_;
  Behaviour behaviour_ = asWindowsDo;
  bool inTray_ = false;
  bool released_ = false;
  WindowState before_ = WindowState::normal;  // how the window stood before it was minimised
  std::vector<Connection> connections_;
};

}  // namespace vantrel

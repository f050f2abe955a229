#include "appearance/modTray.h"

#include <utility>

namespace vantrel {
namespace {

const char* nameOf(TrayButton button) {
  switch (button) {
    case TrayButton::left:
      return "Left";
    case TrayButton::right:
      return "Right";
    default:
      return "Middle";
  }
}

}  // namespace

modTray::modTray(const TrayContext& context) : c_(context) {
  for (CheckBox* const box : {&chkTray, &chkMin, &chkPersistent}) {
    box->value.set(1);
  }
  txtTip.text.set("Vantrel\r\n");
  connections_.push_back(chkTray.value.changed.connect([this] { clickTray(); }));
  connections_.push_back(chkMin.value.changed.connect([this] { clickMin(); }));
  connections_.push_back(chkPersistent.value.changed.connect([this] { clickPersistent(); }));
  Tray& tray = c_.tray;
  connections_.push_back(tray.Click.connect([this](TrayButton button) {
    note(button, " Click");
    if (button == TrayButton::left) {
      restore();
    }
  }));
  connections_.push_back(tray.DblClick.connect([this](TrayButton button) { note(button, " Double-Click"); }));
  connections_.push_back(tray.MouseDown.connect([this](TrayButton button) { note(button, " Mouse Down"); }));
  connections_.push_back(tray.menuChosen.connect([this](int entry) { choose(entry); }));
  connections_.push_back(tray.Refreshed.connect([this] { refreshed(); }));
  connections_.push_back(tray.lost.connect([this] { comeBack(); }));
  frmMain& window = c_.mainWindow;
  connections_.push_back(window.windowState.changed.connect([this] { followWindow(); }));
  connections_.push_back(window.visible.changed.connect([this] { followWindow(); }));
  connections_.push_back(window.focusWanted.connect([this] {
    if (inTray_) {
      restore();
    }
  }));
}

void modTray::load() {
  clickTray();
  clickMin();
  clickPersistent();
}

void modTray::release() {
  released_ = true;
  inTray_ = false;
  c_.tray.setIconVisible(false);
}

void modTray::clickTray() {
  c_.tray.setUp({{"Restore", "About Vantrel CE", "Exit"}, TrayButton::right, txtTip.text.get()});
  c_.tray.setIconVisible(chkTray.isChecked());
  comeBack();
}

void modTray::clickMin() {
  behaviour_ = chkMin.isChecked() ? hideInTray : asWindowsDo;
  if (behaviour_ == asWindowsDo) {
    c_.tray.setIconVisible(chkTray.isChecked());
    comeBack();
  }
}

void modTray::clickPersistent() {
  c_.tray.setPersistent(chkPersistent.isChecked());
}

void modTray::refreshed() {
  chkTray.value.set(c_.tray.isIconVisible() ? 1 : 0);
  c_.notices.ShowPopMsg("Explorer has been restarted.");
}

void modTray::choose(int entry) {
  switch (entry) {
    case mnuRestore:
      restore();
      break;
    case mnuAbout:
      restore();
      c_.about();
      break;
    case mnuExit:
      c_.exit();
      break;
    default:
      break;
  }
}

void modTray::note(TrayButton button, const char* deed) {
  lstTray.add(std::string(nameOf(button)) + deed);
}

// A part of the program that changes the state of the window in the tray, as when the game has ended, wants it seen.
void modTray::followWindow() {
  frmMain& window = c_.mainWindow;
  const WindowState state = window.windowState.get();
  if (released_) {
    return;
  }
  if (state != WindowState::minimized) {
    before_ = state;
    if (std::exchange(inTray_, false)) {
      window.visible.set(true);
    }
  } else if (window.visible.get() && behaviour_ == hideInTray && c_.tray.isIconVisible()) {
    inTray_ = true;
    window.visible.set(false);
  }
}

void modTray::restore() {
  frmMain& window = c_.mainWindow;
  if (!inTray_ && !window.visible.get()) {  // It has not come up yet, or it is closing.
    return;
  }
  if (window.windowState.get() == WindowState::minimized) {
    window.windowState.set(before_);
  }
  window.focusWanted.fire();
}

// To where windows are that are minimised as windows do, unless the icon is still there.
void modTray::comeBack() {
  if (inTray_ && (behaviour_ == asWindowsDo || !c_.tray.isIconVisible())) {
    inTray_ = false;
    c_.mainWindow.visible.set(true);
  }
}

}  // namespace vantrel

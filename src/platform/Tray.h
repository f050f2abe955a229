// Face of the desktop's tray with the program's icon in it.
#pragma once

#include <string>
#include <vector>

#include "platform/Signal.h"

namespace vantrel {

enum class TrayButton { left = 1, right = 2, middle = 4 };

struct TrayIconPlan {
  std::vector<std::string> popupMenu = {};    // entries, numbered from 1
  TrayButton menuButton = TrayButton::right;  // which opens the menu
  std::string toolTip = {};
};

class Tray {
 public:
  virtual ~Tray() = default;

  // What the icon has from now on. The icon is not shown by this.
  virtual void setUp(const TrayIconPlan& plan) = 0;

  // Whether the user sees the icon: never where the desktop has no tray.
  virtual bool isIconVisible() const = 0;
  virtual void setIconVisible(bool visible) = 0;

  // Whether the icon comes back by itself, when it was visible and the desktop has built its tray anew.
  virtual void setPersistent(bool persistent) = 0;

  // Told from the loop, never during a call.
  Signal<TrayButton> Click;
  Signal<TrayButton> DblClick;
  Signal<TrayButton> MouseDown;
  Signal<int> menuChosen;  // number of the entry
  Signal<> Refreshed;      // the desktop has built its tray anew
  Signal<> lost;           // the tray with the icon is gone
};

}  // namespace vantrel

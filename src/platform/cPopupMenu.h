// Face of the menu that a right click opens.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

class cPopupMenu {
 public:
  virtual ~cPopupMenu() = default;

  // Shows a menu with these texts at the mouse, a text "-" being a separator, and returns when the user has chosen or
  // dismissed it; events run meanwhile. Entries number from 1, separators counted; 0 when the menu was dismissed, by a
  // second menu too, and when the program ends.
  virtual int Popup(const std::vector<std::string>& items) = 0;
};

}  // namespace vantrel

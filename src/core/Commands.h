// The commands of the main window by their numbers. Each part of the program registers its own, and every button, key
// and other window reaches all of them through here, so that no part need know another for it.
#pragma once

#include <functional>
#include <map>

#include "platform/Notices.h"

namespace vantrel {

class Commands {
 public:
  // `notices` must outlive this.
  explicit Commands(Notices& notices) : notices_(notices) {}

  // Makes `handler` the command of that number, in place of the one before. It may throw failures.
  void add(int index, std::function<void()> handler) { handlers_[index] = std::move(handler); }

  // Runs a command; a number without one does nothing. A failure ends the command and is reported to the user. Commands
  // may run others and may be run while one of them waits.
  void cmdMenu_Click(int index);

  // The same, for other windows.
  void clickIt(int button) { cmdMenu_Click(button); }

 private:
  Notices& notices_;
  std::map<int, std::function<void()>> handlers_;
};

}  // namespace vantrel

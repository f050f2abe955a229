// The rules of the boxes that an address, a port or a name is typed into.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "platform/Notices.h"

namespace vantrel {

class InputBoxes {
 public:
  // All of it must outlive this.
  InputBoxes(frmMain& window, Commands& commands, Notices& notices, Loop& loop);

 private:
  void splitAddress(TextBox& address, TextBox& port);
  void runOnEnter(TextBox& box, command::Number number);
  void allowOnly(TextBox& box, const std::string& characters, const std::string& title, const std::string& text);
  void refuse(const TextBox& box, const std::string& title, const std::string& text);

  Commands& commands_;
  Notices& notices_;
  Loop& loop_;
  std::set<const TextBox*> refusing_;  // a balloon of theirs is up: further wrong keys need no second one
  bool colonTyped_ = false;            // what stands behind the address is about to be typed
  std::vector<Connection> connections_;
};

}  // namespace vantrel

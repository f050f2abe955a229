// The two switches that the user sets by pairs of option buttons, auto join and auto refresh, and what auto refresh
// does.
#pragma once

#include <string>
#include <vector>

#include "core/Commands.h"
#include "core/Settings.h"
#include "core/frmMain.h"

namespace vantrel {

class AutoSwitches {
 public:
  // Adds the commands of the four buttons to `commands`. All of it must outlive this.
  AutoSwitches(frmMain& window, Commands& commands, Settings& settings);

  Signal<> autoJoinChosen;  // the user has turned auto join on, which may have been on before

 private:
  enum class State { off, on };

  void refresh();
  void turn(const std::string& setting, Picture& picture, State state);

  frmMain& window_;
  Commands& commands_;
  Settings& settings_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

#include "join/AutoSwitches.h"

#include "core/Numbers.h"

namespace vantrel {

AutoSwitches::AutoSwitches(frmMain& window, Commands& commands, Settings& settings)
    : window_(window), commands_(commands), settings_(settings) {
  commands.add(command::autoRefreshOn, [this] {
    window_.cmdMenu[command::autoRefreshOn].value.set(1);
    window_.tmrRefresh.switchOn();
    turn("AutoRefresh", window_.picRefresh, State::on);
  });
  commands.add(command::autoRefreshOff, [this] {
    window_.cmdMenu[command::autoRefreshOff].value.set(1);
    window_.tmrRefresh.switchOff();
    turn("AutoRefresh", window_.picRefresh, State::off);
  });
  commands.add(command::autoJoinOn, [this] {
    window_.cmdMenu[command::autoJoinOn].value.set(1);
    window_.tmrRefresh.switchOn();
    turn("AutoJoin", window_.picJoin, State::on);
    autoJoinChosen.fire();
  });
  // Auto refresh is a switch of its own and goes on.
  commands.add(command::autoJoinOff, [this] {
    window_.cmdMenu[command::autoJoinOff].value.set(1);
    turn("AutoJoin", window_.picJoin, State::off);
  });
  connections_.push_back(window.tmrRefresh.tick.connect([this] { refresh(); }));
  // The buttons are there from the start, so this brings back what something has hidden, and is no more than that.
  connections_.push_back(window.picJoin.clicked.connect([this] {
    window_.cmdMenu[command::autoJoinOn].visible.set(true);
    window_.cmdMenu[command::autoJoinOff].visible.set(true);
  }));
  connections_.push_back(window.picRefresh.clicked.connect([this] {
    window_.cmdMenu[command::autoRefreshOn].visible.set(true);
    window_.cmdMenu[command::autoRefreshOff].visible.set(true);
  }));
}

// The page that is shown after it is the one for queries, whichever of the detail pages the user was on.
void AutoSwitches::refresh() {
  const bool detailShows = window_.picScore.visible.get() && !window_.PicAbout.visible.get();
  if (detailShows && isNumeric(window_.txtPort.text.get())) {
    commands_.clickIt(command::queryServer);
  }
}

void AutoSwitches::turn(const std::string& setting, Picture& picture, State state) {
  settings_.setParameter(setting, state == State::on ? "1" : "0");
  picture.image.set(state == State::on ? "on" : "off");
}

}  // namespace vantrel

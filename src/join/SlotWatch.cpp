#include "join/SlotWatch.h"

#include <string>

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace vantrel {

SlotWatch::SlotWatch(const Context& context) : c_(context) {
  connections_.push_back(c_.query.replied.connect([this](const ServerLoad& load) { hear(load); }));
  connections_.push_back(c_.switches.autoJoinChosen.connect([this] { waiting_ = isFull(); }));
  connectPrompt();
  connectStops();
}

void SlotWatch::connectPrompt() {
  connections_.push_back(c_.prompt.yesClicked.connect([this] { answerYes(); }));
  connections_.push_back(c_.prompt.noClicked.connect([this] { answerNo(); }));
  connections_.push_back(c_.prompt.closed.connect([this] { closePrompt(); }));
  connections_.push_back(c_.prompt.tmr1.tick.connect([this] {
    c_.prompt.tmr1.switchOff();
    c_.sound.PlayWav(c_.prompt.txtWav.text.get());
  }));
}

void SlotWatch::connectStops() {
  frmMain& window = c_.mainWindow;
  for (TextBox* const box : {&window.txtIP, &window.txtPort}) {
    connections_.push_back(box->text.changed.connect([this] {
      waiting_ = false;
      closePrompt();
    }));
  }
  Field<bool>& detailShows = window.picScore.visible;
  connections_.push_back(
      detailShows.changed.connect([this, &detailShows] { waiting_ = waiting_ && detailShows.get(); }));
  // A game that has been started is the end of all waiting, whatever started it.
  Field<std::string>& game = window.lblProcess.caption;
  connections_.push_back(game.changed.connect([this, &game] { waiting_ = waiting_ && game.get().empty(); }));
  Field<int>& chosen = window.cmdMenu[command::autoJoinOn].value;
  connections_.push_back(chosen.changed.connect([this, &chosen] { waiting_ = waiting_ && chosen.get() != 0; }));
}

bool SlotWatch::holdBack() {
  waiting_ = false;
  if (launchesNow_ || !isFull() || c_.prompt.chkMsg.isChecked()) {
    closePrompt();
    return false;
  }
  c_.prompt.visible.set(true);
  c_.prompt.tmr1.switchOn();
  return true;
}

// Without a detail page on show nothing would be asked again.
void SlotWatch::answerYes() {
  closePrompt();
  c_.commands.clickIt(command::autoJoinOn);
  waiting_ = true;
  if (!c_.mainWindow.picScore.visible.get()) {
    c_.commands.clickIt(command::queryServer);
  }
}

void SlotWatch::answerNo() {
  closePrompt();
  join();
}

void SlotWatch::closePrompt() {
  c_.prompt.tmr1.switchOff();
  c_.prompt.cmdYes.enabled.set(true);
  c_.prompt.cmdLaunch.visible.set(false);
  c_.prompt.visible.set(false);
}

// Only the current server's own word counts: a stranger's would start the game.
bool SlotWatch::isCurrent(const ServerLoad& load) const {
  const std::string& port = c_.mainWindow.txtPort.text.get();
  return !load.ip.empty() && load.ip == trimBlanks(c_.mainWindow.txtIP.text.get()) && isNumeric(port) &&
         toNumber(port) == load.port;
}

void SlotWatch::hear(const ServerLoad& load) {
  last_ = load;
  if (joining_ || !waiting_ || !isCurrent(load) || load.isFull() || !c_.mainWindow.picScore.visible.get() ||
      c_.game.running()) {
    return;
  }
  joining_ = true;
  c_.notices.ShowPopMsg(c_.mainWindow.lblData.caption.get() + "\r\n has an open spot!");
  c_.sound.PlayWav(c_.prompt.txtWav.text.get());
  joining_ = false;
  // While the sound was heard the waiting may have ended, or the slot been taken.
  if (waiting_ && !isFull()) {
    join();
  }
}

void SlotWatch::join() {
  launchesNow_ = true;
  c_.commands.clickIt(command::launchGame);
  launchesNow_ = false;
}

}  // namespace vantrel

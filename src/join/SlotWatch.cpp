#include "join/SlotWatch.h"

#include <string>
#include <utility>

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
    c_.sound.play(c_.prompt.txtWav.text.get());
  }));
}

void SlotWatch::connectStops() {
  frmMain& window = c_.mainWindow;
  const auto stop = [this] { waiting_ = false; };
  for (TextBox* const box : {&window.txtIP, &window.txtPort}) {
    connections_.push_back(box->text.changed.connect([this] {
      waiting_ = false;
      closePrompt();
    }));
  }
  connections_.push_back(window.picScore.visible.changed.connect(stop));
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
  const ServerLoad asked = last_;
  closePrompt();
  c_.commands.clickIt(command::autoJoinOn);
  if (!c_.mainWindow.picScore.visible.get()) {
    c_.commands.clickIt(command::queryServer);
  }
  waiting_ = isCurrent(asked);
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
  if (joining_ || !waiting_ || !isCurrent(load) || load.isFull() || c_.game.running()) {
    return;
  }
  joining_ = true;
  c_.notices.ShowPopMsg(c_.mainWindow.lblData.caption.get() + "\r\n has an open spot!");
  c_.sound.play(c_.prompt.txtWav.text.get());
  joining_ = false;
  // The user may have ended the waiting while the sound was heard.
  if (std::exchange(waiting_, false)) {
    join();
  }
}

void SlotWatch::join() {
  launchesNow_ = true;
  c_.commands.clickIt(command::launchGame);
  launchesNow_ = false;
}

}  // namespace vantrel

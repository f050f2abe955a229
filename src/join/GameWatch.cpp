#include "join/GameWatch.h"

#include <string>
#include <utility>

namespace vantrel {
namespace {

constexpr int lookFor = 1;  // milliseconds

}  // namespace

GameWatch::GameWatch(frmMain& window, frmBuddies& buddies, Processes& processes, Notices& notices, modMirc& announcer)
    : window_(window), buddies_(buddies), processes_(processes), notices_(notices), announcer_(announcer) {
  tick_ = window.tmrRunning.tick.connect([this] { look(); });
}

void GameWatch::watch(const GameProcess& game) {
  letGo();
  game_ = game;
  window_.lblProcess.caption.set(std::to_string(game.process));
  window_.lblThread.caption.set(std::to_string(game.thread));
  window_.lblProcessID.caption.set(std::to_string(game.processId));
  window_.lblThreadID.caption.set(std::to_string(game.threadId));
  window_.tmrRunning.switchOn();
}

// Whatever ends the wait but its time is the end of the game, also a handle that no longer means anything.
void GameWatch::look() {
  if (game_.process == 0 || processes_.wait(game_.process, lookFor) == ProcessWait::timeOut) {
    return;
  }
  letGo();
  notices_.ShowPopMsg("Welcome back.");
  announcer_.announceBack();
  if (buddies_.visible.get()) {
    buddies_.windowState.set(WindowState::normal);
  }
  window_.windowState.set(WindowState::normal);
  window_.tmrRunning.switchOff();
  for (Label* const label : {&window_.lblProcess, &window_.lblProcessID, &window_.lblThread, &window_.lblThreadID}) {
    label->caption.set("");
  }
}

void GameWatch::letGo() {
  const GameProcess game = std::exchange(game_, {});
  if (game.process != 0) {
    processes_.close(game.process);
    processes_.close(game.thread);
  }
}

}  // namespace vantrel

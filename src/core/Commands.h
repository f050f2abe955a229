// The commands of the main window by their numbers. Each part of the program registers its own, and every button, key
// and other window reaches all of them through here, so that no part need know another for it.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include "core/frmMain.h"
#include "platform/Failure.h"
#include "platform/Notices.h"

namespace vantrel {

// Thrown by a step of a command: the steps behind it do not run, and there is nothing to report.
struct CommandEnded {};

class Commands {
 public:
  using Step = std::function<void()>;

  // Both must outlive this.
  Commands(frmMain& window, Notices& notices) : window_(window), notices_(notices) {}

  // Makes these steps the command of that number, in place of the one before. A step may throw failures. Behind failure
  // 997, an operation that goes on in the background, the next step runs; any other ends the command.
  void add(int index, std::vector<Step> steps) { commands_[index] = std::move(steps); }
  void add(int index, Step step) { add(index, std::vector<Step>{std::move(step)}); }

  // What is done when a command has met a connection that was reset.
  void onConnectionReset(Step step) { connectionReset_ = std::move(step); }

  // Runs a command; a number without one does nothing of its own. A failure ends the command and is reported to the
  // user. Commands may run others and may be run while one of them waits.
  void cmdMenu_Click(int index);

  // The same, for other windows.
  void clickIt(int button) { cmdMenu_Click(button); }

 private:
  void beginEach(int index);
  static void runStep(const Step& step);
  void report(const Failure& failure);

  frmMain& window_;
  Notices& notices_;
  std::map<int, std::vector<Step>> commands_;
  Step connectionReset_;
};

}  // namespace vantrel

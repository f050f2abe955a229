#include "core/Commands.h"

#include <string>

#include "core/FailureStyles.h"

namespace vantrel {
namespace {

constexpr int stillUnderWay = 997;

}  // namespace

void Commands::cmdMenu_Click(int index) {
  beginEach(index);
  const auto found = commands_.find(index);
  if (found == commands_.end()) {
    return;
  }
  const std::vector<Step> steps = found->second;
  try {
    reportAndEnd(
        [&steps] {
          for (const Step& step : steps) {
            runStep(step);
          }
        },
        [this](const Failure& failure) { report(failure); });
  } catch (const CommandEnded&) {  // The command was over before its last step.
  }
}

// The pages other than those of the server on show end its auto refresh.
void Commands::beginEach(int index) {
  window_.cmdMenu[command::explainBuddies].visible.set(false);
  const bool leaves = index == command::showSettings || index == command::showFaves || index == command::showTools ||
                      index == command::showServers;
  if (leaves && window_.tmrRefresh.enabled()) {
    cmdMenu_Click(command::autoRefreshOff);
  }
}

void Commands::runStep(const Step& step) {
  try {
    step();
  } catch (const Failure& failure) {
    if (failure.number != stillUnderWay) {
      throw;
    }
  }
}

void Commands::report(const Failure& failure) {
  if (failure.number > 1) {
    notices_.ShowPopMsg(errorReport(failure));
  }
  if (failure.number == failures::connectionReset().number) {
    window_.cmdMenu[command::autoJoinOn].value.set(0);
    if (connectionReset_) {
      connectionReset_();
    }
    notices_.ShowPopMsg("The connection with the server was reset by remote host.");
  }
}

}  // namespace vantrel

#include "desktop/adapters/ArrivalNesting.h"

#include <algorithm>
#include <utility>

#include "platform/Sockets.h"

namespace vantrel {

ArrivalNesting::Gate::Gate(ArrivalNesting& nesting, std::function<void()> changed)
    : nesting_(nesting), changed_(std::move(changed)), id_(++nesting.lastId_) {
  nesting_.gates_.push_back(this);
}

ArrivalNesting::Gate::~Gate() {
  std::erase(nesting_.gates_, this);
}

void ArrivalNesting::Gate::run(const std::function<void()>& handler) {
  ArrivalNesting& nesting = nesting_;
  nesting.enter(id_);
  const bool outer = std::exchange(nesting.innermostIsWait_, false);
  handler();
  nesting.innermostIsWait_ = outer;
  nesting.leave();
}

// A handler's own wait stands directly on its activation; a wait on a wait is that of a timer, a click or the like.
ArrivalNesting::Wait::Wait(ArrivalNesting& nesting)
    : nesting_(nesting), outerInnermostIsWait_(std::exchange(nesting.innermostIsWait_, true)) {
  if (outerInnermostIsWait_ && !nesting_.runs_.empty()) {
    nesting_.enter(0);
    beganRun_ = true;
  }
}

ArrivalNesting::Wait::~Wait() {
  nesting_.innermostIsWait_ = outerInnermostIsWait_;
  if (beganRun_) {
    nesting_.leave();
  }
}

void ArrivalNesting::enter(std::uint64_t gate) {
  ++depth_;
  if (gate == 0 || runs_.empty() || runs_.back().gate != gate) {
    runs_.push_back({gate, 0, false});
  }
  Run& run = runs_.back();
  ++run.depth;
  run.comingDown = run.comingDown || run.depth >= maximumNesting;
  refresh();
}

void ArrivalNesting::leave() {
  --depth_;
  if (--runs_.back().depth == 0) {
    runs_.pop_back();
  }
  refresh();
}

void ArrivalNesting::refresh() {
  const std::uint64_t held = !runs_.empty() && runs_.back().comingDown ? runs_.back().gate : 0;
  for (Gate* const gate : gates_) {
    const bool open = depth_ < maximumDepth && gate->id_ != held;
    if (std::exchange(gate->open_, open) != open) {
      gate->changed_();
    }
  }
}

}  // namespace vantrel

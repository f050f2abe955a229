#include "desktop/PosixReader.h"

#include <QObject>
#include <QSocketNotifier>
#include <utility>

#include "platform/Sockets.h"

namespace vantrel {

struct PosixReader::State {
  std::function<void()> readable;
  QSocketNotifier* notifier;  // empty once the reader is destroyed
  int depth;
};

PosixReader::PosixReader(int descriptor, std::function<void()> readable)
    : state_(std::make_shared<State>(State{std::move(readable), nullptr, 0})) {
  state_->notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read);
  QObject::connect(state_->notifier, &QSocketNotifier::activated, [state = state_] {
    if (state->notifier == nullptr) {
      return;
    }
    ++state->depth;
    if (state->depth == maximumNesting) {
      state->notifier->setEnabled(false);
    }
    state->readable();
    --state->depth;
    if (state->depth == 0 && state->notifier != nullptr) {
      state->notifier->setEnabled(true);
    }
  });
}

PosixReader::~PosixReader() {
  // The notifier may be in the middle of its own signal, further up the stack.
  QSocketNotifier* const notifier = std::exchange(state_->notifier, nullptr);
  notifier->setEnabled(false);
  notifier->deleteLater();
}

}  // namespace vantrel

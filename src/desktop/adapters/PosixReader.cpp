#include "desktop/adapters/PosixReader.h"

#include <QObject>
#include <QSocketNotifier>
#include <utility>

namespace vantrel {

struct PosixReader::State {
  std::function<void()> readable;
  QSocketNotifier* notifier;  // empty once the reader is destroyed
};

PosixReader::PosixReader(int descriptor, std::function<void()> readable)
    : state_(std::make_shared<State>(State{std::move(readable), nullptr})) {
  state_->notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read);
  QObject::connect(state_->notifier, &QSocketNotifier::activated, [state = state_] {
    if (state->notifier != nullptr && state->notifier->isEnabled()) {
      state->readable();
    }
  });
}

PosixReader::~PosixReader() {
  // The notifier may be in the middle of its own signal, further up the stack.
  QSocketNotifier* const notifier = std::exchange(state_->notifier, nullptr);
  notifier->setEnabled(false);
  notifier->deleteLater();
}

void PosixReader::setEnabled(bool enabled) {
  state_->notifier->setEnabled(enabled);
}

}  // namespace vantrel

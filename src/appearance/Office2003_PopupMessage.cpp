#include "appearance/Office2003_PopupMessage.h"

#include <cstdlib>
#include <utility>

#include "appearance/SetWindowAlpha.h"

namespace vantrel {
namespace {

constexpr int solid = 255;
constexpr int ownStep = 4;

}  // namespace

Office2003_PopupMessage::Office2003_PopupMessage(Loop& loop, Owner owner)
    : Timer1(loop, tickInterval), owner_(std::move(owner)), ticked_(Timer1.tick.connect([this] { fade(); })) {}

void Office2003_PopupMessage::MakeVisible() {
  TransparencyLevel = 0;
  TransparencyDirection = ownStep;
  SetWindowAlpha(owner_.window, TransparencyLevel);
  owner_.show();
  owner_.focus();
}

void Office2003_PopupMessage::MakeInVisible() {
  TransparencyLevel = solid;
  TransparencyDirection = -ownStep;
  SetWindowAlpha(owner_.window, TransparencyLevel);
}

// A window that has come up keeps the opacity of its last step, which is not quite solid.
void Office2003_PopupMessage::fade() {
  if (TransparencyDirection == 0) {
    return;
  }
  if (SetWindowAlpha(owner_.window, TransparencyLevel) == alpha::outOfRange && TransparencyDirection < 0) {
    owner_.hide();
  }
  TransparencyLevel += TransparencyDirection;
  const int step = std::abs(TransparencyDirection);
  if (TransparencyLevel < step) {
    TransparencyDirection = 0;
    TransparencyLevel = 0;
    SetWindowAlpha(owner_.window, 0);
    owner_.unload();
  } else if (TransparencyLevel > solid - step) {
    TransparencyDirection = 0;
    TransparencyLevel = solid;
  }
}

}  // namespace vantrel

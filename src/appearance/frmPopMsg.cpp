#include "appearance/frmPopMsg.h"

#include <cmath>
#include <utility>

#include "core/FailureStyles.h"
#include "core/Numbers.h"

namespace vantrel {
namespace {

constexpr int rising = 36;
constexpr int falling = -8;
constexpr int fallingSlowly = -2;

constexpr const char* positionKey = "Software\\Office2003\\Position";
constexpr float farthest = 1e6F;  // twips; no desktop is that large

}  // namespace

frmPopMsg::frmPopMsg(Loop& loop, Registry& registry)
    : Office2003_PopupMessage1(loop, {*this, [this] { visible.set(true); }, [this] { visible.set(false); },
                                      [this] { requestUnload(); }, [this] { focusWanted.fire(); }}),
      Office2003_Button1(loop),
      tmrHide(loop, timeOnShow),
      registry_(registry) {
  Office2003_Button1.setCaption("");
  connections_.push_back(tmrHide.tick.connect([this] {
    close();
    tmrHide.switchOff();
  }));
  connections_.push_back(Office2003_Button1.Click.connect([this] { close(); }));
  Office2003_PopupMessage& control = Office2003_PopupMessage1;
  connections_.push_back(control.MouseDown.connect([this](const PopupMouse& mouse) { beginDrag(mouse); }));
  connections_.push_back(control.MouseMove.connect([this](const PopupMouse& mouse) { drag(mouse); }));
  connections_.push_back(control.MouseUp.connect([this](const PopupMouse&) { endDrag(); }));
}

void frmPopMsg::ShowPopMsg(const std::string& text) {
  if (!loaded_) {
    load();
  }
  Office2003_PopupMessage1.setCaption(text);
  Office2003_PopupMessage1.TransparencyDirection = rising;
  visible.set(true);
}

void frmPopMsg::requestUnload() {
  if (!loaded_) {
    return;
  }
  if (Office2003_PopupMessage1.TransparencyLevel > 0) {
    Office2003_PopupMessage1.TransparencyDirection = fallingSlowly;
    return;
  }
  unload();
}

// Without a window to be seen through there is only the time that the fading takes.
bool frmPopMsg::setConstantAlpha(int level) {
  return layer_ == nullptr || layer_->setConstantAlpha(level);
}

// The window is clear until its first step, whatever it was when it went.
void frmPopMsg::load() {
  loaded_ = true;
  Office2003_PopupMessage1.TransparencyLevel = 0;
  Office2003_PopupMessage1.TransparencyDirection = 0;
  Placement corner = place.get();
  corner.Left = stored("Left");
  corner.Top = stored("Top");
  place.set(corner);
  setConstantAlpha(0);
  Office2003_PopupMessage1.Timer1.switchOn();
  tmrHide.switchOn();
}

void frmPopMsg::unload() {
  endDrag();
  loaded_ = false;
  Office2003_PopupMessage1.Timer1.switchOff();
  tmrHide.switchOff();
  visible.set(false);
}

void frmPopMsg::close() {
  if (Office2003_PopupMessage1.TransparencyLevel > 0) {
    Office2003_PopupMessage1.TransparencyDirection = falling;
  }
}

void frmPopMsg::beginDrag(const PopupMouse& mouse) {
  grip_ = Grip{static_cast<int>(std::lround(mouse.x)), static_cast<int>(std::lround(mouse.y))};
}

// What is kept is the place before each step, so that the next message comes up one step short of here. It goes to the
// disk when the drag is over: a write for each step of the mouse would make the window stick.
void frmPopMsg::drag(const PopupMouse& mouse) {
  if (!grip_) {
    return;
  }
  Placement corner = place.get();
  kept_ = corner;
  corner.Left += mouse.x - static_cast<float>(grip_->x);
  corner.Top += mouse.y - static_cast<float>(grip_->y);
  place.set(corner);
}

void frmPopMsg::endDrag() {
  grip_.reset();
  if (const std::optional<Placement> kept = std::exchange(kept_, std::nullopt)) {
    store("Top", kept->Top);
    store("Left", kept->Left);
  }
}

float frmPopMsg::stored(const char* key) const {
  const std::optional<std::string> text = registry_.read(RegistryRoot::currentUser, positionKey, key);
  if (!text || !isNumeric(*text)) {
    return firstCorner;
  }
  const auto twips = static_cast<float>(toNumber(*text));
  return std::abs(twips) < farthest ? twips : firstCorner;
}

void frmPopMsg::store(const char* key, float twips) {
  stopSilently([&] {
    registry_.write(RegistryRoot::currentUser, positionKey, key, RegistryType::text,
                    std::to_string(std::lround(twips)));
  });
}

}  // namespace vantrel

#include "appearance/Office2003_Button.h"

#include <iterator>

#include "core/FailureStyles.h"
#include "core/PumpWait.h"
#include "core/Text.h"

namespace vantrel {
namespace {

constexpr int tickInterval = 1;  // milliseconds
constexpr int frames = 4;

constexpr Color outline = 0xCFCFCF;
constexpr Color lightEdge = 0x80000014;
constexpr Color darkEdge = 0x80000015;
constexpr Color disabledText = 0x80000011;

constexpr int singleLineAndNoClip = 0x120;
constexpr int alignments[] = {5, 1, 9, 4, 0, 8, 6, 2, 10};
constexpr int usualAlignment = 5;

}  // namespace

Office2003_Button::Office2003_Button(Loop& loop) : Timer1(loop, tickInterval), loop_(loop) {
  connections_.push_back(Timer1.tick.connect([this] { tick(); }));
  for (Signal<>* const changed : {&Align.changed, &BackColor.changed, &ForeColor.changed, &Enabled.changed}) {
    connections_.push_back(changed->connect([this] { repaint.fire(); }));
  }
}

void Office2003_Button::setCaption(const std::string& caption) {
  caption_ = caption;
  accessKey_.clear();
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] == '&') {
      ++i;
      accessKey_ = caption[i] == '&' ? accessKey_ : std::string(1, caption[i]);
    }
  }
  repaint.fire();
}

void Office2003_Button::setPicture(const ButtonStrip* strip) {
  strip_ = strip;
  keepFrameSize();
  repaint.fire();
}

void Office2003_Button::setHost(OfficeButtonHost* host) {
  host_ = host;
  keepFrameSize();
}

void Office2003_Button::keepFrameSize() {
  if (strip_ != nullptr && host_ != nullptr) {
    host_->resize(strip_->width(), strip_->height() / frames);
  }
}

void Office2003_Button::resized() {
  keepFrameSize();
  repaint.fire();
}

void Office2003_Button::mouseMove(MouseButton button, ButtonPoint at) {
  if (!activeWindowTest()) {
    return;
  }
  maskHit_ = isHit(at);
  Timer1.switchOn();
  MouseMove.fire(button, at);
}

void Office2003_Button::mouseDown(MouseButton button, ButtonPoint at) {
  MouseDown.fire(button, at);
  maskHit_ = isHit(at);
  if (!maskHit_) {
    return;
  }
  down_ = true;
  Timer1.switchOn();
  draw(pressed);
}

void Office2003_Button::mouseUp(MouseButton button, ButtonPoint at) {
  if (down_ && maskHit_) {
    draw(hover);
    look_ = hover;
  }
  down_ = false;
  MouseUp.fire(button, at);
}

void Office2003_Button::click() {
  if (maskHit_) {
    Click.fire();
  }
}

// Without a strip there is no mask, and everything counts.
bool Office2003_Button::isHit(ButtonPoint at) const {
  if (strip_ == nullptr) {
    return true;
  }
  const int height = strip_->height() / frames;
  return at.y >= 0 && at.y < height && strip_->isBlack({at.x, at.y + maskFrame * height});
}

// Events run in it, also further ticks, which answer from what they see. A failure leaves everything as it is.
bool Office2003_Button::activeWindowTest() {
  if (!lettingEventsRun_) {
    lettingEventsRun_ = true;
    PumpWait(loop_, 0);
    lettingEventsRun_ = false;
  }
  bool active = false;
  stopSilently([this, &active] {
    active = host_ != nullptr && host_->isParentActive();
    if (!active) {
      Timer1.switchOff();
      draw(normal);
      look_ = normal;
    }
  });
  return active;
}

bool Office2003_Button::isInside() const {
  const ButtonPoint at = host_->pointer();
  const ButtonPoint end = host_->size();
  return at.x >= 0 && at.y >= 0 && at.x < end.x && at.y < end.y && maskHit_;
}

void Office2003_Button::tick() {
  if (!activeWindowTest()) {
    return;
  }
  if (isInside()) {
    take(down_ ? pressed : hover);
  } else if (down_) {
    take(hover);
  } else {
    Timer1.switchOff();
    take(normal);
  }
}

void Office2003_Button::take(Look look) {
  if (look_ != look) {
    draw(look);
    look_ = look;
  }
}

void Office2003_Button::draw(Look look) {
  if (drawn_ != look) {
    drawn_ = look;
    repaint.fire();
  }
}

void Office2003_Button::paint(OfficeButtonCanvas& canvas) const {
  if (strip_ != nullptr) {
    canvas.drawFrame(drawn_);
  } else {
    canvas.clear(BackColor.get());
    const Color topAndLeft = drawn_ == normal ? outline : drawn_ == hover ? lightEdge : darkEdge;
    const Color bottomAndRight = drawn_ == normal ? outline : drawn_ == hover ? darkEdge : lightEdge;
    canvas.drawBox(topAndLeft, bottomAndRight);
  }
  const std::string text(trimSpaces(caption_));
  if (!text.empty()) {
    canvas.drawText(text, textFlags(Align.get()), Enabled.get() ? ForeColor.get() : disabledText);
  }
}

int Office2003_Button::textFlags(int align) {
  const int known = align >= 0 && align < static_cast<int>(std::size(alignments)) ? align : usualAlignment;
  return alignments[known] | singleLineAndNoClip;
}

}  // namespace vantrel

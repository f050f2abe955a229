#include "desktop/controls/LvButton.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "desktop/controls/Inks.h"
#include "desktop/controls/PainterCanvas.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int sideRoom = 20;  // beside caption and picture together
constexpr int gap = 6;        // between them
constexpr int rowRoom = 12;   // above and below the caption together
constexpr int softStyle = 2;

Color colorOf(const QColor& color) {
  return static_cast<Color>(color.red()) | static_cast<Color>(color.green()) << 8 |
         static_cast<Color>(color.blue()) << 16;
}

// What the platform's colours are here.
SystemColors systemColors() {
  SystemColors all{};
  for (std::size_t index = 0; index < all.size(); ++index) {
    all[index] = colorOf(screenColor(0x80000000U | static_cast<Color>(index)));
  }
  return all;
}

// The back colour of which the soft style makes a face of this colour.
Color backFor(const QColor& face) {
  const int blue = face.blue() * 192 / (192 + 48);
  return colorOf(QColor(std::max(face.red() - 48, 0), std::max(face.green() - 48, 0), blue));
}

ButtonMouse mouseOf(const QMouseEvent& event, Qt::MouseButtons buttons) {
  const Qt::KeyboardModifiers keys = event.modifiers();
  const int shift = (keys.testFlag(Qt::ShiftModifier) ? 1 : 0) | (keys.testFlag(Qt::ControlModifier) ? 2 : 0) |
                    (keys.testFlag(Qt::AltModifier) ? 4 : 0);
  return {static_cast<int>(buttons & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton)), shift,
          static_cast<float>(event.position().x()), static_cast<float>(event.position().y())};
}

int codeOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Space:
      return 32;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Shift:
      return 16;
    default:
      return 0;
  }
}

}  // namespace

LvButton::LvButton(QWidget* parent, std::shared_ptr<ButtonContainer> container)
    : QPushButton(parent),
      isOption_(container != nullptr),
      container_(container != nullptr ? std::move(container) : std::make_shared<ButtonContainer>()),
      system_(systemColors()),
      control_({*this, *container_, system_}),
      clicked_(control_.Click.connect([this] { press(); })) {
  setAutoDefault(false);
  control_.setButtonStyle(softStyle);
  followPalette();
  connect(&hover_, &QTimer::timeout, this, [this] { control_.hoverTick(); });
}

void LvButton::setColors(Color back, Color fore, Color gradient) {
  hasColors_ = true;
  control_.DelayDrawing(true);
  control_.setBackColor(back);
  control_.setForeColor(fore);
  control_.setGradientColor(gradient);
  control_.DelayDrawing(false);
}

QSize LvButton::sizeHint() const {
  const QSize caption =
      text().isEmpty() ? QSize(0, fontMetrics().height()) : fontMetrics().size(Qt::TextShowMnemonic, text());
  const int picture = icon().isNull() ? 0 : iconSize().width();
  const int between = picture > 0 && !text().isEmpty() ? gap : 0;
  return {caption.width() + picture + between + sideRoom,
          std::max(caption.height(), icon().isNull() ? 0 : iconSize().height() - 2) + rowRoom};
}

// What hears of it says which button is on now.
void LvButton::press() {
  const QPointer<LvButton> self(this);
  Q_EMIT clicked(isChecked());
  if (self != nullptr && isCheckable() && control_.Value() != isChecked()) {
    control_.setValue(isChecked());
  }
}

// What was set on the button since it was last looked at goes to the control.
void LvButton::follow() {
  const std::string caption = toCp1252(text());
  if (caption != control_.Caption()) {
    control_.setCaption(caption);
  }
  ButtonPicture picture;
  if (!icon().isNull()) {
    picture = {ButtonPicture::Kind::icon, iconSize().width(), iconSize().height()};
    control_.setPictureSize(std::clamp(iconSize().width() / 8 - 2, 0, 2));
    control_.setPictureAlign(text().isEmpty() ? 4 : 1);
  }
  if (picture != control_.Picture()) {
    control_.setPicture(picture);
  }
  const int mode = !isCheckable() ? 0 : isOption_ ? 2 : 1;
  if (mode != control_.Mode()) {
    control_.setMode(mode);
    control_.setValue(isChecked());
  }
}

void LvButton::followPalette() {
  if (!hasColors_) {
    control_.setBackColor(backFor(palette().color(QPalette::Active, QPalette::Button)));
    control_.setForeColor(colorOf(palette().color(QPalette::Active, QPalette::ButtonText)));
    control_.setGradientColor(control_.BackColor());
  }
}

bool LvButton::event(QEvent* event) {
  if (event->type() == QEvent::Shortcut && isEnabled()) {
    follow();
    setFocus(Qt::ShortcutFocusReason);
    control_.accessKeyPress(control_.shownCaption().accessKey);
    return true;
  }
  return QPushButton::event(event);
}

void LvButton::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) {
    control_.setEnabled(isEnabled());
  } else if (event->type() == QEvent::PaletteChange) {
    followPalette();
  }
  QPushButton::changeEvent(event);
}

void LvButton::resizeEvent(QResizeEvent* event) {
  control_.resize(width(), height());
  QPushButton::resizeEvent(event);
}

void LvButton::paintEvent(QPaintEvent* /*event*/) {
  follow();
  QPainter painter(this);
  cutCorners(painter);
  PainterCanvas canvas(painter, icon(), captionGround());
  const QSize screenSize = screen()->size();
  control_.draw(canvas, FontMeasure(font()), screenSize.width(), screenSize.height());
}

// A button that is on has a light face whatever its colours are, and the user may choose any colours.
PainterCanvas::Ground LvButton::captionGround() const {
  if (!isEnabled() || control_.CaptionStyle() != 0) {
    return std::nullopt;
  }
  return screenColor(buttonFace(control_.look()).solid);
}

// The outline of the shape; of a rectangle in most styles without its corner pixels.
void LvButton::cutCorners(QPainter& painter) const {
  const ButtonOutline& outline = control_.outline();
  if (outline.slant > 0) {
    const qreal right = outline.shapeRight < outline.width ? outline.shapeRight + 1 : outline.width;
    QPainterPath path;
    path.addPolygon(QPolygonF({QPointF(0, 0), QPointF(outline.shapeInset, height()), QPointF(width(), height()),
                               QPointF(right, 0), QPointF(0, 0)}));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(path);
    return;
  }
  const int style = control_.ButtonStyle();
  if (style == 1 || style == 2 || style == 7 || (style == 3 && isEnabled())) {
    QRegion inside(rect());
    for (const QPoint corner : {rect().topLeft(), rect().topRight(), rect().bottomLeft(), rect().bottomRight()}) {
      inside -= QRect(corner, QSize(1, 1));
    }
    painter.setClipRegion(inside);
  }
}

void LvButton::enterEvent(QEnterEvent* event) {
  isOver_ = true;
  if (isEnabled()) {
    control_.mouseMove({0, 0, static_cast<float>(event->position().x()), static_cast<float>(event->position().y())});
  }
}

void LvButton::leaveEvent(QEvent* /*event*/) {
  isOver_ = false;
}

void LvButton::mousePressEvent(QMouseEvent* event) {
  isDoubleClick_ = false;
  follow();
  control_.mouseDown(mouseOf(*event, event->button()));
}

void LvButton::mouseReleaseEvent(QMouseEvent* event) {
  const bool isClick = event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) &&
                       control_.heldDown() && !std::exchange(isDoubleClick_, false);
  control_.mouseUp(mouseOf(*event, event->button()));
  if (isClick) {
    control_.click();
  }
}

void LvButton::mouseMoveEvent(QMouseEvent* event) {
  isOver_ = rect().contains(event->position().toPoint());
  control_.mouseMove(mouseOf(*event, event->buttons()));
}

void LvButton::mouseDoubleClickEvent(QMouseEvent* event) {
  isDoubleClick_ = true;
  control_.dblClick(mouseOf(*event, event->button()));
}

void LvButton::keyPressEvent(QKeyEvent* event) {
  const int code = codeOf(*event);
  if (code == 0 || code == 16) {
    event->ignore();
    return;
  }
  follow();
  if (!event->isAutoRepeat() || code != 32) {
    control_.keyDown(code, 0);
  }
}

void LvButton::keyReleaseEvent(QKeyEvent* event) {
  const int code = codeOf(*event);
  if (code == 0 || event->isAutoRepeat()) {
    event->ignore();
    return;
  }
  control_.keyUp(code, 0);
}

void LvButton::focusInEvent(QFocusEvent* event) {
  QPushButton::focusInEvent(event);
  follow();
  control_.ambientDisplayAsDefault(true);
  control_.gotFocus();
}

// A press that is under way ends with the focus: its release will not come here.
void LvButton::focusOutEvent(QFocusEvent* event) {
  QPushButton::focusOutEvent(event);
  if (control_.heldDown()) {
    control_.setEnabled(false);
    control_.setEnabled(isEnabled());
  }
  control_.ambientDisplayAsDefault(false);
}

void LvButton::checkStateSet() {
  follow();
  if (control_.Value() != isChecked()) {
    control_.setValue(isChecked());
  }
}

void LvButton::startTimer(int /*id*/, int milliseconds) {
  hover_.start(milliseconds);
}

void LvButton::killTimer(int /*id*/) {
  hover_.stop();
}

// The toolkit does so itself as long as a button of the mouse is down.
void LvButton::captureMouse(bool /*captured*/) {}

void LvButton::postKey(int keyCode, unsigned /*message*/) {
  focusNextPrevChild(keyCode == 39 || keyCode == 40);
}

}  // namespace vantrel

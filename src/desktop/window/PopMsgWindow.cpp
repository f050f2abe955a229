#include "desktop/window/PopMsgWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "desktop/controls/Theme.h"
#include "desktop/pictures/SvgPicture.h"
#include "desktop/text/Cp1252.h"
#include "desktop/text/NoticeLayout.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int usualWidth = 300;
constexpr int bandHeight = 26;  // above the text
constexpr int footHeight = 6;   // beneath it
constexpr int padding = 12;
constexpr int smallestRoom = 40;
constexpr int markSide = 16;
constexpr int closeMargin = 3;

constexpr int mostLines = 12;
constexpr std::size_t longestText = 4000;  // bytes; more are never shown

constexpr Qt::WindowFlags messageFlags =
    Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

QPoint cornerOf(const Placement& place) {
  return {static_cast<int>(std::lround(place.Left / twipsPerPixel)),
          static_cast<int>(std::lround(place.Top / twipsPerPixel))};
}

// The others know no opacity and complain about each step of a fade.
bool hasOpacity() {
  return QStringList{"xcb", "windows", "cocoa"}.contains(QGuiApplication::platformName());
}

}  // namespace

PopMsgWindow::PopMsgWindow(frmPopMsg& model)
    : QWidget(nullptr, messageFlags),
      model_(model),
      close_(model.Office2003_Button1, &closeStrip_, "Office2003_Button1", this) {
  setObjectName("frmPopMsg");
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  close_.setFocusPolicy(Qt::NoFocus);
  close_.setAccessibleName(tr("Close"));
  model.setLayer(this);
  bindings_.keep(model.Office2003_PopupMessage1.Lbl_Caption.caption.changed.connect([this] { showText(); }));
  bindings_.keep(model.place.changed.connect([this] { move(cornerOf(model_.place.get())); }));
  bindings_.keep(model.visible.changed.connect([this] { follow(); }));
  bindings_.keep(model.focusWanted.connect([this] { raise(); }));
  showText();
  follow();
}

PopMsgWindow::~PopMsgWindow() {
  model_.setLayer(nullptr);
}

bool PopMsgWindow::setConstantAlpha(int level) {
  if (hasOpacity()) {
    setWindowOpacity(level / 255.0);
  }
  return true;
}

// The band and the foot keep their heights, and what is between them stretches. The text takes no more than half of the
// screen's height.
void PopMsgWindow::showText() {
  const QRect screen = screenArea();
  const QFontMetrics metrics(font());
  const int width = std::min(usualWidth, screen.width());
  const int room = std::max(smallestRoom, width - 2 * padding);
  const int lines = std::clamp(screen.height() / 2 / metrics.lineSpacing(), 1, mostLines);
  const std::string& caption = model_.Office2003_PopupMessage1.Caption();
  text_ = fittedText(fromCp1252(std::string_view(caption).substr(0, longestText)), font(), {room, lines});
  const int textHeight = static_cast<int>(text_.count(QLatin1Char('\n')) + 1) * metrics.lineSpacing();
  setFixedSize(width, bandHeight + textHeight + 2 * padding + footHeight);
  close_.move(width - closeMargin - close_.width(), (bandHeight - close_.height()) / 2);
  setAccessibleName(text_);
  Placement place = model_.place.get();
  place.Width = static_cast<float>(this->width()) * twipsPerPixel;
  place.Height = static_cast<float>(height()) * twipsPerPixel;
  model_.place.set(place);
  if (isVisible()) {
    comeOntoScreen();
    announce();
  }
  update();
}

void PopMsgWindow::follow() {
  if (!model_.visible.get()) {
    hide();
    return;
  }
  comeOntoScreen();
  show();
  raise();
  announce();
}

// The stored place may be one of a screen that is gone: the message comes up where it can be seen.
void PopMsgWindow::comeOntoScreen() {
  const QRect screen = screenArea();
  const QPoint wish = cornerOf(model_.place.get());
  const QPoint corner = freePlace(size(), {wish}, screen, {});
  if (corner != wish) {
    Placement place = model_.place.get();
    place.Left = static_cast<float>(corner.x()) * twipsPerPixel;
    place.Top = static_cast<float>(corner.y()) * twipsPerPixel;
    model_.place.set(place);
  }
  move(corner);
}

QRect PopMsgWindow::screenArea() const {
  const QPoint corner = cornerOf(model_.place.get());
  const QScreen* screen = QGuiApplication::screenAt(corner);
  screen = screen != nullptr ? screen : QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 640, 480);
}

// From where the model has the window, and not from where the window system has it yet.
PopupMouse PopMsgWindow::mouseOf(const QMouseEvent& event) const {
  const QPointF at = event.globalPosition();
  const Placement place = model_.place.get();
  const Qt::KeyboardModifiers held = event.modifiers();
  const int shift = (held.testFlag(Qt::ShiftModifier) ? 1 : 0) | (held.testFlag(Qt::ControlModifier) ? 2 : 0) |
                    (held.testFlag(Qt::AltModifier) ? 4 : 0);
  const MouseButton button = event.button() == Qt::RightButton    ? MouseButton::right
                             : event.button() == Qt::MiddleButton ? MouseButton::middle
                                                                  : MouseButton::left;
  return {button, shift, static_cast<float>(at.x()) * twipsPerPixel - place.Left,
          static_cast<float>(at.y()) * twipsPerPixel - place.Top};
}

void PopMsgWindow::mousePressEvent(QMouseEvent* event) {
  model_.Office2003_PopupMessage1.MouseDown.fire(mouseOf(*event));
}

void PopMsgWindow::mouseMoveEvent(QMouseEvent* event) {
  model_.Office2003_PopupMessage1.MouseMove.fire(mouseOf(*event));
}

void PopMsgWindow::mouseReleaseEvent(QMouseEvent* event) {
  model_.Office2003_PopupMessage1.MouseUp.fire(mouseOf(*event));
  if (rect().contains(event->position().toPoint())) {
    model_.Office2003_PopupMessage1.Click.fire();
  }
}

void PopMsgWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  model_.requestUnload();
}

void PopMsgWindow::announce() {
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void PopMsgWindow::paintBand(QPainter& painter) const {
  const QRectF band(0, 0, width(), bandHeight);
  QLinearGradient shade(band.topLeft(), band.bottomLeft());
  shade.setColorAt(0, theme::button);
  shade.setColorAt(1, theme::panel);
  painter.fillRect(band, shade);
  painter.save();
  paintPicture(painter, QStringLiteral("program"),
               QRectF(padding - 4, (bandHeight - markSide) / 2.0, markSide, markSide));
  painter.restore();
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(theme::dimText.lighter(118));
  painter.drawText(band.adjusted(padding + markSide + 4, 0, -bandHeight, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   QStringLiteral("Vantrel CE"));
}

void PopMsgWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), theme::panel);
  paintBand(painter);
  painter.fillRect(QRect(0, height() - footHeight, width(), footHeight), theme::window);
  painter.fillRect(QRect(0, 0, width(), 2), theme::accent);
  painter.setFont(font());
  painter.setPen(theme::text);
  painter.drawText(QRect(padding, bandHeight + padding, width() - 2 * padding, height()),
                   Qt::AlignTop | Qt::AlignLeft | Qt::TextDontClip, text_);
  QPen edge(theme::edge.lighter(150), 1);
  edge.setJoinStyle(Qt::MiterJoin);
  painter.setPen(edge);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace vantrel

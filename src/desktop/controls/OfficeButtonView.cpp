#include "desktop/controls/OfficeButtonView.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "desktop/controls/Inks.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int closeSide = 20;  // pixels at 100 %

// The platform's text flags.
constexpr int centredFlag = 1;
constexpr int rightFlag = 2;
constexpr int middleFlag = 4;
constexpr int bottomFlag = 8;

MouseButton buttonOf(const QMouseEvent& event) {
  const Qt::MouseButton pressed = event.button();
  return pressed == Qt::RightButton    ? MouseButton::right
         : pressed == Qt::MiddleButton ? MouseButton::middle
                                       : MouseButton::left;
}

ButtonPoint placeOf(const QMouseEvent& event) {
  const QPoint at = event.position().toPoint();
  return {at.x(), at.y()};
}

void paintCloseFrame(QPainter& painter, const QRectF& square, int frame) {
  painter.setRenderHint(QPainter::Antialiasing, frame != Office2003_Button::maskFrame);
  painter.setPen(Qt::NoPen);
  if (frame == Office2003_Button::maskFrame) {
    painter.fillRect(square, Qt::white);
    painter.setBrush(Qt::black);
    painter.drawEllipse(square);
    return;
  }
  if (frame != Office2003_Button::normal) {
    painter.setBrush(frame == Office2003_Button::hover ? theme::button.lighter(125) : theme::strong);
    painter.drawEllipse(square.adjusted(0.5, 0.5, -0.5, -0.5));
  }
  const qreal arm = square.width() * 0.19;
  painter.setPen(
      QPen(frame == Office2003_Button::normal ? theme::dimText : QColor(Qt::white), 1.6, Qt::SolidLine, Qt::RoundCap));
  const QPointF centre = square.center();
  painter.drawLine(centre + QPointF(-arm, -arm), centre + QPointF(arm, arm));
  painter.drawLine(centre + QPointF(-arm, arm), centre + QPointF(arm, -arm));
}

class WidgetCanvas : public OfficeButtonCanvas {
 public:
  WidgetCanvas(QWidget& widget, const DrawnStrip* strip) : widget_(widget), strip_(strip), painter_(&widget) {}

  void drawFrame(int frame) override {
    if (strip_ != nullptr) {
      strip_->paintFrame(painter_, frame);
    }
  }
  void clear(Color color) override { painter_.fillRect(widget_.rect(), screenColor(color)); }
  void drawBox(Color topAndLeft, Color bottomAndRight) override {
    const QRect box = widget_.rect();
    const QColor upper = screenColor(topAndLeft);
    const QColor lower = screenColor(bottomAndRight);
    painter_.fillRect(QRect(0, box.bottom(), box.width(), 1), lower);
    painter_.fillRect(QRect(box.right(), 0, 1, box.height()), lower);
    painter_.fillRect(QRect(0, 0, box.width(), 1), upper);
    painter_.fillRect(QRect(0, 0, 1, box.height()), upper);
  }
  void drawText(const std::string& text, int flags, Color color) override {
    const int across = (flags & rightFlag) != 0     ? Qt::AlignRight
                       : (flags & centredFlag) != 0 ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
    const int down = (flags & bottomFlag) != 0   ? Qt::AlignBottom
                     : (flags & middleFlag) != 0 ? Qt::AlignVCenter
                                                 : Qt::AlignTop;
    painter_.setPen(screenColor(color));
    painter_.setFont(widget_.font());
    painter_.drawText(widget_.rect(), across | down | Qt::TextSingleLine | Qt::TextDontClip | Qt::TextShowMnemonic,
                      fromCp1252(text));
  }

 private:
  QWidget& widget_;
  const DrawnStrip* strip_;
  QPainter painter_;
};

}  // namespace

DrawnStrip::DrawnStrip(int side, PaintFrame paint)
    : side_(side), paint_(std::move(paint)), mask_(side, side, QImage::Format_RGB32) {
  mask_.fill(Qt::white);
  QPainter painter(&mask_);
  paint_(painter, QRectF(0, 0, side, side), Office2003_Button::maskFrame);
}

bool DrawnStrip::isBlack(ButtonPoint pixel) const {
  const QPoint inMask(pixel.x, pixel.y - side_ * Office2003_Button::maskFrame);
  return mask_.rect().contains(inMask) && (mask_.pixel(inMask) & 0xFFFFFF) == 0;
}

void DrawnStrip::paintFrame(QPainter& painter, int frame) const {
  paint_(painter, QRectF(0, 0, side_, side_), frame);
}

DrawnStrip makeCloseStrip() {
  return {closeSide, paintCloseFrame};
}

OfficeButtonView::OfficeButtonView(Office2003_Button& model, const DrawnStrip* strip, const char* name, QWidget* parent)
    : QAbstractButton(parent), model_(model), strip_(strip) {
  setObjectName(name);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setEnabled(model.Enabled.get());
  connections_.push_back(model.repaint.connect([this] {
    setEnabled(model_.Enabled.get());
    update();
  }));
  connect(this, &QAbstractButton::clicked, this, [this] { model_.click(); });
  model.setPicture(strip);
  model.setHost(this);
}

OfficeButtonView::~OfficeButtonView() {
  model_.setHost(nullptr);
  model_.setPicture(nullptr);
}

QSize OfficeButtonView::sizeHint() const {
  return QWidget::size();
}

void OfficeButtonView::resize(int width, int height) {
  setFixedSize(width, height);
}

// A window that never takes the focus is as active as it gets while the mouse is on it.
bool OfficeButtonView::isParentActive() const {
  const QWidget* const top = window();
  return top->isActiveWindow() || (top->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus) && top->underMouse());
}

ButtonPoint OfficeButtonView::pointer() const {
  const QPoint at = mapFromGlobal(QCursor::pos());
  return isVisible() ? ButtonPoint{at.x(), at.y()} : ButtonPoint{-1, -1};
}

void OfficeButtonView::paintEvent(QPaintEvent* /*event*/) {
  WidgetCanvas canvas(*this, strip_);
  model_.paint(canvas);
}

void OfficeButtonView::resizeEvent(QResizeEvent* /*event*/) {
  model_.resized();
}

void OfficeButtonView::mouseMoveEvent(QMouseEvent* event) {
  model_.mouseMove(buttonOf(*event), placeOf(*event));
}

void OfficeButtonView::mousePressEvent(QMouseEvent* event) {
  model_.mouseDown(buttonOf(*event), placeOf(*event));
}

void OfficeButtonView::mouseReleaseEvent(QMouseEvent* event) {
  model_.mouseUp(buttonOf(*event), placeOf(*event));
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    model_.click();
  }
}

void OfficeButtonView::mouseDoubleClickEvent(QMouseEvent* event) {
  model_.DblClick.fire();
  mousePressEvent(event);
}

void OfficeButtonView::keyPressEvent(QKeyEvent* event) {
  model_.KeyDown.fire(event->key());
  const std::string typed = toCp1252(event->text());
  if (!typed.empty()) {
    model_.KeyPress.fire(static_cast<unsigned char>(typed.front()));
  }
}

void OfficeButtonView::keyReleaseEvent(QKeyEvent* event) {
  model_.KeyUp.fire(event->key());
}

}  // namespace vantrel

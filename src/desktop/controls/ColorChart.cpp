#include "desktop/controls/ColorChart.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr double greys = 16;  // height of the strip, in pixels at 100 %
constexpr int keyStep = 4;
constexpr int wideStep = 20;  // with Shift

Color modelColor(const QColor& color) {
  return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace

ColorChart::ColorChart(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(240, 110);
  setCursor(Qt::CrossCursor);
}

QColor ColorChart::inkAt(double x, double y) const {
  const double across = std::clamp(x / std::max(1, width() - 1), 0.0, 1.0);
  const double hues = height() - greys;
  if (y >= hues) {
    return QColor::fromRgbF(static_cast<float>(1 - across), static_cast<float>(1 - across),
                            static_cast<float>(1 - across));
  }
  const double down = std::clamp(y / std::max(1.0, hues - 1), 0.0, 1.0);
  return QColor::fromHslF(static_cast<float>(across * 0.999), 1, static_cast<float>(1 - down));
}

Color ColorChart::colorAt(const QPoint& place) const {
  return modelColor(inkAt(place.x(), place.y()));
}

void ColorChart::pick(const QPoint& place) {
  place_ = {std::clamp(place.x(), 0, width() - 1), std::clamp(place.y(), 0, height() - 1)};
  update();
  Q_EMIT picked(colorAt(place_));
}

void ColorChart::mousePressEvent(QMouseEvent* event) {
  pick(event->position().toPoint());
}

void ColorChart::mouseMoveEvent(QMouseEvent* event) {
  pick(event->position().toPoint());
}

void ColorChart::keyPressEvent(QKeyEvent* event) {
  const int step = event->modifiers().testFlag(Qt::ShiftModifier) ? wideStep : keyStep;
  switch (event->key()) {
    case Qt::Key_Left:
      return pick(place_ - QPoint(step, 0));
    case Qt::Key_Right:
      return pick(place_ + QPoint(step, 0));
    case Qt::Key_Up:
      return pick(place_ - QPoint(0, step));
    case Qt::Key_Down:
      return pick(place_ + QPoint(0, step));
    case Qt::Key_Space:
      return pick(place_);
    default:
      QWidget::keyPressEvent(event);
  }
}

void ColorChart::paintEvent(QPaintEvent* /*event*/) {
  const double ratio = devicePixelRatioF();
  const QSize pixels(static_cast<int>(std::ceil(width() * ratio)), static_cast<int>(std::ceil(height() * ratio)));
  if (drawn_.size() != pixels) {
    drawn_ = QImage(pixels, QImage::Format_RGB32);
    for (int y = 0; y < pixels.height(); ++y) {
      for (int x = 0; x < pixels.width(); ++x) {
        drawn_.setPixelColor(x, y, inkAt(x / ratio, y / ratio));
      }
    }
  }
  QPainter painter(this);
  painter.drawImage(rect(), drawn_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  for (const auto& [ink, radius] : {std::pair<QColor, qreal>(Qt::black, 5), std::pair<QColor, qreal>(Qt::white, 4)}) {
    painter.setPen(ink);
    painter.drawEllipse(QPointF(place_) + QPointF(0.5, 0.5), radius, radius);
  }
  painter.setPen(hasFocus() ? theme::focus : theme::edge);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace vantrel

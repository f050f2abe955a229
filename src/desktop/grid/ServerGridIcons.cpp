#include "desktop/grid/ServerGridIcons.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "desktop/grid/DrawnIcon.h"

namespace vantrel {

namespace {

// All images are drawn on a square of 16 by 16 units, in tones that stand out from a light header and from dark rows.
constexpr qreal unit = 16;
constexpr int lastImage = 4;

void paintLock(QPainter& painter) {
  QPainterPath shackle(QPointF(5, 8));
  shackle.lineTo(5, 5.2);
  shackle.arcTo(QRectF(5, 2.2, 6, 6), 180, -180);
  shackle.lineTo(11, 8);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0x9A, 0xA3, 0xAD), 1.7));
  painter.drawPath(shackle);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xE0, 0xA0, 0x20));
  painter.drawRoundedRect(QRectF(3, 7.2, 10, 7.3), 1.4, 1.4);
  painter.setBrush(QColor(0x5A, 0x3C, 0x00));
  painter.drawEllipse(QPointF(8, 10.2), 1.2, 1.2);
  painter.drawRect(QRectF(7.45, 10.4, 1.1, 2.4));
}

void paintFirewall(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xC4, 0x54, 0x3A));
  for (int course = 0; course < 3; ++course) {
    const qreal y = 7.2 + course * 2.8;
    const qreal joint = course % 2 == 0 ? 6.2 : 9.0;
    painter.drawRect(QRectF(1, y, joint - 1.4, 2.2));
    painter.drawRect(QRectF(joint + 0.2, y, 14.8 - joint, 2.2));
  }
  QPainterPath flame(QPointF(9.6, 0.8));
  flame.cubicTo(10.2, 3.6, 13.4, 4.6, 13.2, 8.2);
  flame.cubicTo(13.1, 10.8, 11.2, 12.2, 9.2, 12.2);
  flame.cubicTo(7, 12.2, 5.2, 10.6, 5.3, 8.3);
  flame.cubicTo(5.4, 6.6, 6.4, 5.8, 6.7, 4.4);
  flame.cubicTo(7.6, 5.0, 7.9, 5.8, 7.9, 6.6);
  flame.cubicTo(9.4, 5.2, 9.8, 3, 9.6, 0.8);
  painter.setBrush(QColor(0xF2, 0x8C, 0x1E));
  painter.drawPath(flame);
  painter.setBrush(QColor(0xFF, 0xDA, 0x5C));
  painter.drawEllipse(QRectF(7.5, 8, 3.5, 3.9));
}

void paintHead(QPainter& painter, QPointF centre, const QColor& color) {
  QPainterPath shoulders(centre + QPointF(-4.4, 9));
  shoulders.cubicTo(centre + QPointF(-4.4, 2.2), centre + QPointF(4.4, 2.2), centre + QPointF(4.4, 9));
  shoulders.closeSubpath();
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPath(shoulders);
  painter.drawEllipse(centre, 2.7, 2.9);
}

void paintPlayers(QPainter& painter) {
  paintHead(painter, {10.9, 4.6}, QColor(0x4A, 0x7D, 0xB8));
  paintHead(painter, {5.6, 5.6}, QColor(0x6F, 0xAD, 0xEB));
}

void paintPing(QPainter& painter) {
  QPainterPath pulse(QPointF(0.8, 9));
  for (const QPointF point :
       {QPointF(4.2, 9), QPointF(6.2, 3), QPointF(9.4, 13.6), QPointF(11.2, 9), QPointF(15.2, 9)}) {
    pulse.lineTo(point);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0x2F, 0xA8, 0x4F), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(pulse);
}

class GridIconEngine : public DrawnIcon {
 public:
  explicit GridIconEngine(int number) : number_(number) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    painter->save();
    painter->setOpacity(mode == QIcon::Disabled ? 0.4 : 1.0);
    paintGridImage(*painter, number_, rect);
    painter->restore();
  }

  QIconEngine* clone() const override { return new GridIconEngine(number_); }

 private:
  int number_;
};

// The blips stand where a golden angle puts them, so that they look scattered and are the same each time.
void paintBlips(QPainter& painter, QPointF centre, QColor ink) {
  painter.setPen(Qt::NoPen);
  for (int i = 1; i <= 14; ++i) {
    const qreal angle = i * 2.39996;
    const qreal distance = 26 + 11.5 * i;
    ink.setAlpha(10 + 2 * (i % 5));
    painter.setBrush(ink);
    painter.drawEllipse(centre + QPointF(std::cos(angle), std::sin(angle)) * distance, 2.2 + i % 2, 2.2 + i % 2);
  }
}

}  // namespace

QColor gridColor(Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

void paintGridImage(QPainter& painter, int number, const QRectF& rect) {
  const qreal side = std::min(rect.width(), rect.height());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.center() - QPointF(side / 2, side / 2));
  painter.scale(side / unit, side / unit);
  switch (number) {
    case 1:
      paintLock(painter);
      break;
    case 2:
      paintFirewall(painter);
      break;
    case 3:
      paintPlayers(painter);
      break;
    case 4:
      paintPing(painter);
      break;
    default:
      break;
  }
  painter.restore();
}

QIcon gridIcon(int number) {
  return number >= 1 && number <= lastImage ? QIcon(new GridIconEngine(number)) : QIcon();
}

QPixmap gridBackdrop(const QColor& ink, qreal devicePixelRatio) {
  const QSizeF size(330, 330);
  const QPointF centre(205, 205);
  QPixmap result((size * devicePixelRatio).toSize());
  result.setDevicePixelRatio(devicePixelRatio);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor faint = ink;
  QConicalGradient sweep(centre, 112);
  faint.setAlpha(20);
  sweep.setColorAt(0, faint);
  faint.setAlpha(0);
  sweep.setColorAt(0.14, faint);
  sweep.setColorAt(1, faint);
  painter.setPen(Qt::NoPen);
  painter.setBrush(sweep);
  painter.drawEllipse(centre, 196, 196);
  painter.setBrush(Qt::NoBrush);
  for (int ring = 1; ring <= 4; ++ring) {
    faint.setAlpha(26 - 4 * ring);
    painter.setPen(QPen(faint, ring == 4 ? 1.6 : 1.2));
    painter.drawEllipse(centre, 49.0 * ring, 49.0 * ring);
  }
  faint.setAlpha(8);
  painter.setPen(QPen(faint, 1));
  painter.drawLine(QPointF(0, centre.y()), QPointF(size.width(), centre.y()));
  painter.drawLine(QPointF(centre.x(), 0), QPointF(centre.x(), size.height()));
  paintBlips(painter, centre, ink);
  return result;
}

}  // namespace vantrel

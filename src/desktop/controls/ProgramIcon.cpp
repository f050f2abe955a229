#include "desktop/controls/ProgramIcon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <cmath>

namespace vantrel {
namespace {

// The drawing has its own units, of which the square is `units` wide.
constexpr qreal units = 64;
constexpr QPointF centre(32, 32);
constexpr int largestPlain = 24;  // pixels

constexpr QColor discTop{43, 56, 74};
constexpr QColor discBottom{18, 23, 31};
constexpr QColor rim{91, 155, 224};
constexpr QColor innerRing{91, 155, 224, 90};
constexpr QColor beam{91, 155, 224, 70};
constexpr QColor lit{120, 214, 138};
constexpr QColor unlit{127, 147, 173};
constexpr QColor litBar{255, 255, 255};
constexpr QColor unlitBar{176, 190, 208};

struct Row {
  qreal y = 0;
  qreal length = 0;
  QColor lamp;
  QColor bar;
};

constexpr Row rows[] = {{20, 22, unlit, unlitBar}, {32, 28, lit, litBar}, {44, 18, unlit, unlitBar}};
constexpr qreal lampX = 18;
constexpr qreal barX = 25;

QLinearGradient discColors(qreal height) {
  QLinearGradient colors(0, 0, 0, height);
  colors.setColorAt(0, discTop);
  colors.setColorAt(1, discBottom);
  return colors;
}

void paintRadar(QPainter& painter) {
  painter.setPen(QPen(rim, 3));
  painter.setBrush(discColors(units));
  painter.drawEllipse(centre, 29.5, 29.5);
  painter.setPen(Qt::NoPen);
  painter.setBrush(beam);
  painter.drawPie(QRectF(4, 4, 56, 56), 20 * 16, 45 * 16);
  painter.setPen(QPen(innerRing, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(centre, 20, 20);
}

void paintRows(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  for (const Row& row : rows) {
    painter.setBrush(row.lamp);
    painter.drawEllipse(QPointF(lampX, row.y), 4, 4);
    painter.setBrush(row.bar);
    painter.drawRoundedRect(QRectF(barX, row.y - 3, row.length, 6), 3, 3);
  }
}

int pixels(qreal length, int side) {
  return static_cast<int>(std::lround(length * side / units));
}

// `side` is even, and so is the height of a row: the middle one lies on the middle.
void paintPlain(QPainter& painter, int side) {
  painter.setPen(QPen(rim, 1));
  painter.setBrush(discColors(side));
  painter.drawEllipse(QRectF(0.5, 0.5, side - 1, side - 1));
  constexpr int thick = 2;
  const int gap = std::max(1, side / 6 - 1);
  const int lampLeft = pixels(lampX - 4, side);
  const int barLeft = lampLeft + thick + std::min(gap, 2);
  int top = side / 2 - thick / 2 - thick - gap;
  for (const Row& row : rows) {
    painter.fillRect(lampLeft, top, thick, thick, row.lamp);
    painter.fillRect(barLeft, top, pixels(row.length, side), thick, row.bar);
    top += thick + gap;
  }
}

QPixmap pixmapOf(int side) {
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  if (side <= largestPlain) {
    paintPlain(painter, side);
  } else {
    paintProgramIcon(painter, QRectF(0, 0, side, side));
  }
  return pixmap;
}

}  // namespace

QIcon programIcon() {
  QIcon icon;
  for (const int side : {16, 20, 22, 24, 32, 40, 48, 64, 96, 128, 256}) {
    icon.addPixmap(pixmapOf(side));
  }
  return icon;
}

void paintProgramIcon(QPainter& painter, const QRectF& square) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(square.topLeft());
  painter.scale(square.width() / units, square.height() / units);
  paintRadar(painter);
  paintRows(painter);
  painter.restore();
}

}  // namespace vantrel

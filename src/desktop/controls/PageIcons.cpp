#include "desktop/controls/PageIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>

#include "desktop/grid/DrawnIcon.h"

namespace vantrel {
namespace {

constexpr qreal unit = 16;          // the side of the square that the pictures are drawn in
constexpr qreal disabledInk = 0.4;  // opacity

void paintEye(QPainter& painter) {
  QPainterPath lids(QPointF(1.5, 8));
  lids.cubicTo(4.5, 2.8, 11.5, 2.8, 14.5, 8);
  lids.cubicTo(11.5, 13.2, 4.5, 13.2, 1.5, 8);
  painter.drawPath(lids);
  painter.drawEllipse(QPointF(8, 8), 2.1, 2.1);
}

// A rubber over the line that it leaves.
void paintClear(QPainter& painter) {
  const QPointF rubber[] = {{5.6, 13}, {2, 9.4}, {9, 2.4}, {14, 7.4}, {8.4, 13}};
  painter.drawPolygon(rubber, 5);
  painter.drawLine(QPointF(5.6, 5.8), QPointF(10.6, 10.8));
  painter.drawLine(QPointF(5.6, 13.4), QPointF(14, 13.4));
}

void paintLens(QPainter& painter) {
  painter.drawEllipse(QPointF(6.6, 6.6), 4.3, 4.3);
  painter.drawLine(QPointF(9.8, 9.8), QPointF(13.6, 13.6));
}

// `tip` is where it points to.
void paintArrow(QPainter& painter, qreal tip, qreal wings) {
  painter.drawLine(QPointF(8, 3), QPointF(8, 13));
  painter.drawPolyline(QPolygonF({{4.2, wings}, {8, tip}, {11.8, wings}}));
}

void paintGlobe(QPainter& painter) {
  painter.drawEllipse(QPointF(8, 8), 6, 6);
  painter.drawEllipse(QPointF(8, 8), 2.6, 6);
  painter.drawLine(QPointF(2, 8), QPointF(14, 8));
}

void paintPicture(QPainter& painter, PageIcon picture) {
  switch (picture) {
    case PageIcon::clear:
      paintClear(painter);
      break;
    case PageIcon::up:
      paintArrow(painter, 3, 6.8);
      break;
    case PageIcon::down:
      paintArrow(painter, 13, 9.2);
      break;
    case PageIcon::globe:
      paintGlobe(painter);
      break;
    case PageIcon::lens:
      paintLens(painter);
      break;
    case PageIcon::eye:
      paintEye(painter);
      break;
    case PageIcon::crossedEye:
      paintEye(painter);
      painter.drawLine(QPointF(3, 13), QPointF(13, 3));
      break;
  }
}

class PageIconEngine : public DrawnIcon {
 public:
  PageIconEngine(PageIcon picture, const QColor& ink) : picture_(picture), ink_(ink) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    const qreal side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(mode == QIcon::Disabled ? disabledInk : 1.0);
    painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
    painter->scale(side / unit, side / unit);
    painter->setPen(QPen(ink_, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paintPicture(*painter, picture_);
    painter->restore();
  }

  QIconEngine* clone() const override { return new PageIconEngine(picture_, ink_); }

 private:
  PageIcon picture_;
  QColor ink_;
};

}  // namespace

QIcon pageIcon(PageIcon picture, const QColor& ink) {
  return QIcon(new PageIconEngine(picture, ink));
}

}  // namespace vantrel

// An icon that is drawn from shapes, so that it is crisp at every size: what derives from it only paints itself.
#pragma once

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace vantrel {

class DrawnIcon : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return result;
  }
};

}  // namespace vantrel

#include "desktop/pictures/SvgPicture.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>

namespace vantrel {
namespace {

constexpr qreal disabledInk = 0.4;  // opacity

QByteArray drawingOf(const QString& name, const QColor& ink) {
  QFile file(QStringLiteral(":/pictures/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) {
    return {};
  }
  return file.readAll().replace("currentColor", ink.name().toLatin1());
}

// A drawing is read once for each size and ink; the toolkit's cache keeps what came of it.
QPixmap pixmapOf(const QString& name, const QSize& size, const QColor& ink) {
  const QString key = QStringLiteral("%1/%2x%3/%4").arg(name).arg(size.width()).arg(size.height()).arg(ink.name());
  QPixmap pixmap;
  if (!QPixmapCache::find(key, &pixmap)) {
    pixmap = QPixmap(size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(drawingOf(name, ink));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    QPixmapCache::insert(key, pixmap);
  }
  return pixmap;
}

class PictureIcon : public QIconEngine {
 public:
  PictureIcon(QString name, const QColor& ink) : name_(std::move(name)), ink_(ink) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    const qreal side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setOpacity(painter->opacity() * (mode == QIcon::Disabled ? disabledInk : 1.0));
    paintPicture(*painter, name_, QRectF(QRectF(rect).center() - QPointF(side / 2, side / 2), QSizeF(side, side)),
                 ink_);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return result;
  }
  QIconEngine* clone() const override { return new PictureIcon(name_, ink_); }

 private:
  QString name_;
  QColor ink_;
};

}  // namespace

void paintPicture(QPainter& painter, const QString& name, const QRectF& place, const QColor& ink) {
  const qreal ratio = painter.device()->devicePixelRatioF() * painter.worldTransform().m11();
  const QSize size = (place.size() * ratio).toSize();
  if (size.isEmpty() || !QFile::exists(QStringLiteral(":/pictures/%1.svg").arg(name))) {
    return;
  }
  painter.drawPixmap(place, pixmapOf(name, size, ink), QRectF(QPointF(0, 0), QSizeF(size)));
}

QIcon pictureIcon(const QString& name, const QColor& ink) {
  return QIcon(new PictureIcon(name, ink));
}

QSizeF pictureSize(const QString& name) {
  const QSvgRenderer renderer(drawingOf(name, Qt::black));
  return renderer.isValid() ? QSizeF(renderer.defaultSize()) : QSizeF();
}

}  // namespace vantrel

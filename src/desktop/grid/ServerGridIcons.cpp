#include "desktop/grid/ServerGridIcons.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "desktop/pictures/SvgPicture.h"

namespace vantrel {
namespace {

constexpr std::array images = {"lock", "firewall", "players", "ping"};

bool isImage(int number) {
  return number >= 1 && number <= static_cast<int>(images.size());
}

QString nameOf(int number) {
  return QString::fromLatin1(images[static_cast<std::size_t>(number - 1)]);
}

}  // namespace

QColor gridColor(Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

void paintGridImage(QPainter& painter, int number, const QRectF& rect) {
  const qreal side = std::min(rect.width(), rect.height());
  if (isImage(number)) {
    paintPicture(painter, nameOf(number), QRectF(rect.center() - QPointF(side / 2, side / 2), QSizeF(side, side)));
  }
}

QIcon gridIcon(int number) {
  return isImage(number) ? pictureIcon(nameOf(number)) : QIcon();
}

QPixmap gridBackdrop(const QColor& ink, qreal devicePixelRatio) {
  const QString name = QStringLiteral("backdrop");
  const QSizeF size = pictureSize(name);
  QPixmap result((size * devicePixelRatio).toSize());
  result.setDevicePixelRatio(devicePixelRatio);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  paintPicture(painter, name, QRectF(QPointF(0, 0), size), ink);
  return result;
}

}  // namespace vantrel

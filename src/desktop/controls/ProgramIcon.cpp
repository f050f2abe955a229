#include "desktop/controls/ProgramIcon.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/pictures/SvgPicture.h"

namespace vantrel {
namespace {

constexpr int largestPlain = 24;  // pixels

QPixmap pixmapOf(int side) {
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paintPicture(painter, side <= largestPlain ? QStringLiteral("program-small") : QStringLiteral("program"),
               QRectF(0, 0, side, side));
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

}  // namespace vantrel

#include "desktop/controls/FavesListDelegate.h"

#include <QPainter>

#include "desktop/controls/FavesInks.h"
#include "desktop/controls/FavesListModel.h"
#include "desktop/controls/Inks.h"
#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int sideMargin = 8;
constexpr int lineMargin = 4;  // above the first line and below the second
constexpr int columnGap = 8;
constexpr int lockSide = 12;

constexpr int lockImage = 1;        // of the server list's images
constexpr float separation = 0.1F;  // share of the text's colour in the line between items

// Whatever is behind the item shines through the line.
void paintSeparator(QPainter& painter, const QRect& item, QColor text) {
  text.setAlphaF(separation);
  painter.fillRect(QRect(item.bottomLeft(), QSize(item.width(), 1)), text);
}

// The width that the text has taken, with a gap to what is beside it.
int paintText(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment side) {
  const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
  painter.drawText(rect, static_cast<int>((side | Qt::AlignVCenter).toInt()) | Qt::TextSingleLine, shown);
  return shown.isEmpty() ? 0 : painter.fontMetrics().horizontalAdvance(shown) + columnGap;
}

}  // namespace

QSize FavesListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
  return {2 * sideMargin, 2 * (option.fontMetrics.height() + lineMargin) + 1};
}

void FavesListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  painter->save();
  FavesInks inks = inksOf(option.palette);
  if ((option.state & QStyle::State_Selected) != 0) {
    painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    inks.text = inks.dim = option.palette.color(QPalette::HighlightedText);
  }
  paintSeparator(*painter, option.rect, option.palette.color(QPalette::Text));
  QRect lines = option.rect.adjusted(sideMargin, lineMargin, -sideMargin, -lineMargin - 1);
  QRect second = lines;
  second.setTop(lines.top() + lines.height() / 2);
  lines.setBottom(second.top() - 1);
  if (index.data(FavesListModel::lockedRole).toBool()) {
    paintGridImage(*painter, lockImage, QRect(second.right() - lockSide + 1, second.top(), lockSide, lockSide));
    second.setRight(second.right() - lockSide - columnGap);
  }
  const FavoritesLook& look = list_.look.get();
  const bool selected = (option.state & QStyle::State_Selected) != 0;
  const auto inkOf = [&](Color color) {
    return selected || colors::isSystem(color) ? inks.dim : dimmed(screenColor(color), inks.ground);
  };
  painter->setPen(inkOf(look.hostname));
  paintText(*painter, second, index.data(FavesListModel::hostnameRole).toString(), Qt::AlignLeft);
  painter->setPen(inkOf(look.gametype));
  const QRect right = lines.adjusted(lines.width() * 2 / 3, 0, 0, 0);
  const int taken = paintText(*painter, right, index.data(FavesListModel::gametypeRole).toString(), Qt::AlignRight);
  painter->setPen(index.data(FavesListModel::namelessRole).toBool() ? inks.dim : inks.text);
  paintText(*painter, lines.adjusted(0, 0, -taken, 0), index.data().toString(), Qt::AlignLeft);
  painter->restore();
}

}  // namespace vantrel

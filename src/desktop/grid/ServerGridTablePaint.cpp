// How the rows of the server list look: stripes, picture, selection and group rows, from back to front.
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "desktop/grid/ServerGridDelegate.h"
#include "desktop/grid/ServerGridIcons.h"
#include "desktop/grid/ServerGridTable.h"

namespace vantrel {

namespace {

constexpr int selectionAlpha = 205;  // of 255: the stripe and the picture shine through a little
constexpr int arrowInset = 7;
constexpr int groupTextInset = 22;

void paintArrow(QPainter& painter, const QPointF& centre, const QColor& ink, bool folded) {
  constexpr qreal half = 4;
  QPolygonF arrow;
  if (folded) {
    arrow << centre + QPointF(-half / 2, -half) << centre + QPointF(half / 2 + 0.5, 0)
          << centre + QPointF(-half / 2, half);
  } else {
    arrow << centre + QPointF(-half, -half / 2) << centre + QPointF(half, -half / 2)
          << centre + QPointF(0, half / 2 + 0.5);
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawPolygon(arrow);
  painter.restore();
}

}  // namespace

void ServerGridTable::paintEvent(QPaintEvent* event) {
  const GridLook& look = grid_.look();
  {
    QPainter painter(viewport());
    painter.setClipRect(event->rect());
    painter.fillRect(event->rect(), gridColor(look.background));
    const int top = verticalScrollBar()->value();
    const int first = firstInSight();
    const int count = viewport()->height() / pitch() + 2;
    const auto rowRect = [&](int position) { return QRect(0, position * pitch() - top, viewport()->width(), pitch()); };
    const int end = std::min(first + count, model_.rowCount());
    for (int position = first; position < end; ++position) {
      if ((position + stripeShift_) % 2 != 0) {
        painter.fillRect(rowRect(position), gridColor(look.alternateRow));
      }
    }
    paintBackdrop(painter);
    for (int position = first; position < end; ++position) {
      paintRow(painter, position, rowRect(position));
    }
  }
  QTableView::paintEvent(event);
  if (hasFocus() && selected_ == 0 && cursorGroup_ == 0) {
    // Where no row shows it, a frame shows who has the focus.
    QPainter painter(viewport());
    painter.setPen(gridColor(look.selectedRow));
    painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
  }
}

void ServerGridTable::paintBackdrop(QPainter& painter) {
  const qreal ratio = viewport()->devicePixelRatioF();
  if (backdrop_.isNull() || backdrop_.devicePixelRatio() != ratio) {
    backdrop_ = gridBackdrop(gridColor(grid_.look().text), ratio);
  }
  const QSizeF size = backdrop_.deviceIndependentSize();
  painter.drawPixmap(QPointF(viewport()->width() - size.width(), viewport()->height() - size.height()), backdrop_);
}

void ServerGridTable::paintRow(QPainter& painter, int position, const QRect& rect) const {
  const GridLook& look = grid_.look();
  const ServerGridOrder::Entry entry = model_.entryAt(position);
  if (entry < 0) {
    paintGroup(painter, entry, rect);
  } else if (entry != 0 && entry == selected_) {
    QColor selection = gridColor(hasFocus() && isActiveWindow() ? look.selectedRow : look.selectedRowWithoutFocus);
    selection.setAlpha(selectionAlpha);
    painter.fillRect(rect, selection);
  }
  painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), gridColor(look.gridLine));
}

void ServerGridTable::paintGroup(QPainter& painter, ServerGridOrder::Entry group, const QRect& rect) const {
  const GridLook& look = grid_.look();
  painter.fillRect(rect, gridColor(look.groupRow));
  if (group == cursorGroup_ && hasFocus()) {
    QColor cursor = gridColor(look.selectedText);
    painter.fillRect(QRect(rect.left(), rect.top(), 3, rect.height()), cursor);
    cursor.setAlpha(40);
    painter.fillRect(rect, cursor);
  }
  const QColor ink = gridColor(look.groupText);
  painter.setPen(ink);
  paintArrow(painter, QPointF(arrowInset + 4.5, rect.center().y() + 0.5), ink, model_.order().group(group).folded);
  QFont bold = font();
  bold.setBold(true);
  const QRect text = rect.adjusted(groupTextInset, 0, -6, -1);
  painter.setFont(bold);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   elidedLine(model_.groupTitle(group), QFontMetrics(bold), text.width()));
}

}  // namespace vantrel

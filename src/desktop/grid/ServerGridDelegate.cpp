#include "desktop/grid/ServerGridDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {

namespace {

constexpr int margin = 4;
constexpr int iconSize = 14;
constexpr int widestFit = 480;
constexpr int longestLine = 1024;
constexpr int longestToolTip = 1024;

constexpr int narrowerWidths[] = {90, 82, 75};  // percent of a font's width; few, so that a column stays calm

bool isNumberLike(const QString& text) {
  return text.size() <= 24 && std::all_of(text.begin(), text.end(), [](QChar character) {
           return (character >= u'0' && character <= u'9') || character == u'.' || character == u'/';
         });
}

QColor textColor(const GridCell& cell, const GridLook& look, bool selected) {
  // White is the colour of a cell that nobody gave one, so that it follows the look and the selection.
  if (cell.color != colors::white) {
    return gridColor(cell.color);
  }
  return gridColor(selected ? look.selectedText : look.text);
}

// The colours of cells are made for the dark rows: yellow could not be read on the light ground of the selection.
void paintPatch(QPainter* painter, const QRect& text, const QColor& ground) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(ground);
  painter->drawRoundedRect(QRectF(text).adjusted(-3, 0, 3, 0), 4, 4);
  painter->restore();
}

}  // namespace

QString elidedLine(const QString& text, const QFontMetrics& metrics, int width) {
  const QString measurable = text.size() > longestLine ? text.left(longestLine) + QChar(0x2026) : text;
  return metrics.elidedText(measurable, Qt::ElideRight, width);
}

FittedLine fittedLine(const QString& text, const QFont& font, int width) {
  const QFontMetrics metrics(font);
  if (isNumberLike(text)) {
    if (metrics.horizontalAdvance(text) <= width) {
      return {text, font};
    }
    for (const int percent : narrowerWidths) {
      QFont narrow = font;
      narrow.setStretch(percent);
      if (QFontMetrics(narrow).horizontalAdvance(text) <= width) {
        return {text, narrow};
      }
    }
  }
  return {elidedLine(text, metrics, width), font};
}

ServerGridDelegate::ServerGridDelegate(const ServerGrid& grid, const ServerGridModel& model, QObject* parent)
    : QStyledItemDelegate(parent), grid_(grid), model_(model) {}

const GridCell& ServerGridDelegate::cellAt(const QModelIndex& index) const {
  const ServerGridOrder::Entry entry = model_.entryAt(index.row());
  return grid_.cell(entry, index.column() + 1);
}

QRect ServerGridDelegate::textRect(const QRect& cell, const QModelIndex& index) const {
  const int icon = cellAt(index).icon != 0 ? iconSize + 3 : 0;
  return cell.adjusted(margin + icon, 0, 1 - margin, -1);
}

void ServerGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (model_.entryAt(index.row()) <= 0) {
    return;
  }
  const GridCell& cell = cellAt(index);
  if (cell.icon != 0) {
    const qreal top = option.rect.top() + (option.rect.height() - 1 - iconSize) / 2.0;
    paintGridImage(*painter, cell.icon, QRectF(option.rect.left() + margin - 1, top, iconSize, iconSize));
  }
  const QString text = index.data(Qt::DisplayRole).toString();
  if (text.isEmpty()) {
    return;
  }
  const QRect place = textRect(option.rect, index);
  const int flags = index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine;
  const auto [line, font] = fittedLine(text, option.font, place.width());
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter->setFont(font);
  if (selected && cell.color != colors::white) {
    paintPatch(painter, painter->boundingRect(place, flags, line), gridColor(grid_.look().alternateRow));
  }
  painter->setPen(textColor(cell, grid_.look(), selected));
  painter->drawText(place, flags, line);
}

QSize ServerGridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (model_.entryAt(index.row()) <= 0) {
    return {};
  }
  const QRect text = textRect(QRect(0, 0, widestFit, option.fontMetrics.height()), index);
  const QString line = elidedLine(index.data(Qt::DisplayRole).toString(), option.fontMetrics, text.width());
  return {option.fontMetrics.horizontalAdvance(line) + widestFit - text.width(), option.fontMetrics.height()};
}

bool ServerGridDelegate::isCut(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QString text = index.data(Qt::DisplayRole).toString();
  return fittedLine(text, option.font, textRect(option.rect, index).width()).text != text;
}

bool ServerGridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || model_.entryAt(index.row()) <= 0 || !isCut(option, index)) {
    QToolTip::hideText();
    return true;
  }
  // A server's name is never markup; the frame around it lets a long one wrap.
  const QString text = index.data(Qt::DisplayRole).toString().left(longestToolTip).toHtmlEscaped();
  QToolTip::showText(event->globalPos(), QStringLiteral("<qt>%1</qt>").arg(text), view->viewport(), option.rect);
  return true;
}

}  // namespace vantrel

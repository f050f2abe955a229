#include "desktop/controls/RowDelegate.h"

#include <QApplication>
#include <QStyle>

namespace vantrel {
namespace {

constexpr int narrower = 88;          // percent of the font's width
constexpr int longestNarrowed = 100;  // characters; no column holds as many

}  // namespace

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
  const int room = option->rect.width() - 2 * margin;
  if (option->text.size() <= longestNarrowed && option->fontMetrics.horizontalAdvance(option->text) > room) {
    QFont font = option->font;
    font.setStretch(narrower);
    if (QFontMetrics(font).horizontalAdvance(option->text) <= room) {
      option->font = font;
      option->fontMetrics = QFontMetrics(font);
    }
  }
}

}  // namespace vantrel

// Draws what stands in one cell of the server list: the icon and one line of text. The row behind it is the table's.
#pragma once

#include <QStyledItemDelegate>

#include "desktop/grid/ServerGridModel.h"

namespace vantrel {

class ServerGridDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // `grid` and `model` must outlive the delegate.
  ServerGridDelegate(const ServerGrid& grid, const ServerGridModel& model, QObject* parent = nullptr);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // What a column needs that is fitted to its texts by a double click; a hostile text does not make it endless.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // Shows the whole text as a tool tip where the cell shows only its beginning.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

  // Where the text of a cell is drawn: the cell without its margins and without the icon.
  QRect textRect(const QRect& cell, const QModelIndex& index) const;
  bool isCut(const QStyleOptionViewItem& option, const QModelIndex& index) const;

 private:
  const GridCell& cellAt(const QModelIndex& index) const;

  const ServerGrid& grid_;
  const ServerGridModel& model_;
};

struct FittedLine {
  QString text;
  QFont font;
};

// One line of `text` that fits into `width`: as it is, or, for a number or an address, narrower by up to a quarter,
// since one that is cut says something else than it should; else with an ellipsis.
FittedLine fittedLine(const QString& text, const QFont& font, int width);

// One line of `text` that fits into `width`; never measures more of a hostile text than a row could show.
QString elidedLine(const QString& text, const QFontMetrics& metrics, int width);

}  // namespace vantrel

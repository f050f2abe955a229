// Draws a cell of a plain list. A text that is a little too long for its column is set narrower before it is cut.
#pragma once

#include <QStyledItemDelegate>

namespace vantrel {

class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace vantrel

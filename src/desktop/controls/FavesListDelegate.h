// How an item of a list of favorites looks: two lines, with the game type and a lock at their right ends.
#pragma once

#include <QStyledItemDelegate>

namespace vantrel {

class FavesListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace vantrel

// How an item of a list of favorites looks: two lines, with the game type and a lock at their right ends.
#pragma once

#include <QStyledItemDelegate>

#include "platform/FavoritesList.h"

namespace vantrel {

class FavesListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // `list` must outlive the delegate.
  FavesListDelegate(const FavoritesList& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  const FavoritesList& list_;
};

}  // namespace vantrel

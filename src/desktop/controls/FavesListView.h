// A list of servers or players that the user keeps: two lines an item, the name and where it is, at the right what is
// played there and a lock where a password is stored. The selection is the list's own, both ways.
#pragma once

#include <QListView>

#include "desktop/controls/FavesListModel.h"

namespace vantrel {

class FavesListView : public QListView {
  Q_OBJECT

 public:
  // `list` must outlive the view. `emptyHint` stands in the view while there is no item.
  FavesListView(FavoritesList& list, const char* name, const QString& emptyHint, QWidget* parent);

  // Shows at once what has changed; it would else be shown a moment later.
  void showChanges() { items_->showChanges(); }

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  void tellClick(const QModelIndex& item);
  void showSelection();

  FavoritesList& list_;
  FavesListModel* items_;
  QString emptyHint_;
  bool followsList_ = true;  // a change of the current row does not come from the user
};

}  // namespace vantrel

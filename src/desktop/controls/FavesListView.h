// A list of servers or players that the user keeps: two lines an item, the name and where it is, at the right what is
// played there and a lock where a password is stored. The selection is the list's own, both ways. A picture may stand
// behind the items, and stands still while they scroll.
#pragma once

#include <QElapsedTimer>
#include <QListView>

#include "desktop/controls/FavesListModel.h"

namespace vantrel {

class FavesPicture;

class FavesListView : public QListView {
  Q_OBJECT

 public:
  // `list` must outlive the view. `emptyHint` stands in the view while there is no item.
  FavesListView(FavoritesList& list, const char* name, const QString& emptyHint, QWidget* parent);

  // Shows at once what has changed; it would else be shown a moment later.
  void showChanges() { items_->showChanges(); }

  void keyboardSearch(const QString& typed) override;

 Q_SIGNALS:
  // What the user wants done with the selected item: a double click or F2, and Delete.
  void editAsked();
  void removeAsked();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers held) override;
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  bool takeShortcut(const QKeyEvent& event);
  bool isTyping() const;
  void tellClick(const QModelIndex& item);
  void copySelected() const;
  void applyLook();
  void showSelection();

  FavoritesList& list_;
  FavesListModel* items_;
  FavesPicture* picture_;
  Connection lookChanged_;
  QString emptyHint_;
  QElapsedTimer sinceTyped_;  // since the last letter of a name was typed
  int lastSelected_ = 1;      // where the keys go on when nothing is selected any more
  bool followsList_ = true;   // a change of the current row does not come from the user
};

}  // namespace vantrel

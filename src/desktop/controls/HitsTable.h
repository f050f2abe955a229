// The players that a search has found, with their servers; a click on a header sorts what is shown.
#pragma once

#include <QTableView>

#include "desktop/controls/HitsModel.h"

namespace vantrel {

class HitsTable : public QTableView {
  Q_OBJECT

 public:
  // `list` must outlive the table. Its selection is the table's own, both ways.
  HitsTable(ListBox& list, QWidget* parent);

 Q_SIGNALS:
  void picked();  // a click on a line, or Enter
  void shown();   // a double click

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers held) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void sortBy(int column);
  void showSelection();

  ListBox& list_;
  HitsModel* hits_;
  bool followsList_ = true;  // a change of the current row does not come from the user
};

}  // namespace vantrel

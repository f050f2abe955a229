// The programs that can be started from the program: one a row, by the names of their files. The selection is the
// list's own, both ways, and each selection by the user is a click on the list.
#pragma once

#include <QListView>

#include "platform/Controls.h"

class QPainter;

namespace vantrel {

class ToolsModel;

class ToolsList : public QListView {
  Q_OBJECT

 public:
  // `list`, whose texts are file names as the system has them, must outlive the view.
  ToolsList(FileListBox& list, QWidget* parent);

 Q_SIGNALS:
  // The user wants the selected tool started: a double click, or Enter.
  void startAsked();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers held) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  void showList();
  void showSelection();
  void tellClick(int row);

  FileListBox& list_;
  ToolsModel* rows_;
  bool followsList_ = false;  // a change of the current row does not come from the user
  Connection changed_;
};

// The picture of a program, as large as `place`, in lines of `ink`.
void paintToolIcon(QPainter& painter, const QRectF& place, const QColor& ink);

}  // namespace vantrel

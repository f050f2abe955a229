// The header of the server list. A click sorts, a drag inside the header moves a column, and a drag out of its upper
// edge offers the column to the grouping bar: the three never happen together. A drag of an edge makes a column wider,
// and a right click asks for the menu of the columns.
#pragma once

#include <QHeaderView>

namespace vantrel {

class ServerGridHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit ServerGridHeader(QWidget* parent = nullptr);

  // Also with room for the columns' images when no column that has one is shown: the rows below stay where they are.
  QSize sizeHint() const override;

 Q_SIGNALS:
  // Columns number from 0, as in the table's model.
  void draggedOut(int column, const QPoint& globalPosition);
  void dragReturned();
  void dropped(int column, const QPoint& globalPosition);
  // The user gives a column this width; also fired for the last one, which gives way to it.
  void widthDragged(int column, int width);
  void menuWanted(const QPoint& globalPosition);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool isResizeHandle(int x) const;
  bool takesHandle(const QMouseEvent& event) const;
  void sendAtPress(QMouseEvent* event);

  int dragged_ = -1;  // the column under the press, while the button is down
  QPoint press_;
  bool outside_ = false;
  bool onHandle_ = false;  // the edge of a column is held
};

}  // namespace vantrel

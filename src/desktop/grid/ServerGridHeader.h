// The header of the server list. A click sorts, a drag inside the header moves a column, and a drag out of its upper
// edge offers the column to the grouping bar: the three never happen together.
#pragma once

#include <QHeaderView>

namespace vantrel {

class ServerGridHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit ServerGridHeader(QWidget* parent = nullptr);

 Q_SIGNALS:
  // Columns number from 0, as in the table's model.
  void draggedOut(int column, const QPoint& globalPosition);
  void dragReturned();
  void dropped(int column, const QPoint& globalPosition);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool isResizeHandle(int x) const;
  void sendAtPress(QMouseEvent* event);

  int dragged_ = -1;  // the column under the press, while the button is down
  QPoint press_;
  bool outside_ = false;
};

}  // namespace vantrel

// The rows of the server list on the screen: paints them, keeps what the user looks at in its place while rows arrive,
// and tells the grid what the user selects. How the rows look stands in ServerGridTablePaint.cpp, what mouse and keys
// do in ServerGridTableInput.cpp.
#pragma once

#include <QPixmap>
#include <QTableView>
#include <vector>

#include "desktop/grid/ServerGridModel.h"
#include "desktop/grid/TypeAhead.h"
#include "platform/ServerGrid.h"

namespace vantrel {

class ServerGridTable : public QTableView {
  Q_OBJECT

 public:
  // `grid` and `model` must outlive the table.
  ServerGridTable(ServerGrid& grid, ServerGridModel& model, QWidget* parent = nullptr);

  // To be called before the groups become others: the keys no longer stand on a group row.
  void forgetGroup() { cursorGroup_ = 0; }

  void doItemsLayout() override;
  // Selects the next server whose name begins with what the user is typing.
  void keyboardSearch(const QString& letters) override;
  // The cursor is the row that the keys stand on, whatever column may be hidden: there a menu opens that keys ask for.
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 Q_SIGNALS:
  // The user wants to know more of the selected server. A listener may do anything, even clear the grid or end the
  // program.
  void rowActivated();

 protected:
  void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) override;
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // An entry that is in sight, with its position and its distance from the top of the viewport.
  struct Sight {
    ServerGridOrder::Entry entry;
    int position;
    int y;
  };

  int pitch() const;  // from one row to the next, in pixels
  int firstInSight() const;
  void applyLook();
  void rememberSight();
  void restoreSight();
  void showSelection();
  std::vector<ServerGridOrder::Entry> entriesInSight() const;

  void press(QMouseEvent* event);
  void toggle(ServerGridOrder::Entry group);
  bool moveByKey(int key);
  bool foldByKey(int key);
  bool actByKey(QKeyEvent* event);
  void activate();
  void moveTo(int position);
  void bringIntoSight(int position);
  void copyAddress() const;
  void openMenu();
  void putCursorOn(ServerGridOrder::Entry entry);
  int cursorPosition() const;

  void paintRow(QPainter& painter, int position, const QRect& rect) const;
  void paintGroup(QPainter& painter, ServerGridOrder::Entry group, const QRect& rect) const;
  void paintBackdrop(QPainter& painter);

  ServerGrid& grid_;
  ServerGridModel& model_;
  int selected_ = 0;                        // row number of the server, also while it is not shown
  ServerGridOrder::Entry cursorGroup_ = 0;  // the group row that the keys stand on, instead of the selected server
  int column_ = 0;                          // the table's column that was last clicked
  TypeAhead typeAhead_;
  int stripeShift_ = 0;  // keeps each row's shade when rows come in above it
  bool toTop_ = false;   // the grid was cleared since the last batch
  std::vector<Sight> sight_;
  std::vector<ServerGridOrder::Entry> shown_;  // in sight before the batch
  bool sightChanged_ = false;                  // one of them has another text
  QPixmap backdrop_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// The server list as the toolkit's table model: its rows are what is shown, from top to bottom, servers and group rows.
//
// Whatever changes in the grid only makes rows dirty. A batch takes all dirty rows over at once, at most about every
// `batchInterval`, and never while the grid's drawing is held off; a batch that fell due meanwhile is shown the moment
// drawing is released. The table's rows are only added and removed at the end, and the content moves over them: that
// costs the same for any length of the list. A view keeps what it must keep between `aboutToShow` and `shown`.
#pragma once

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QTimer>
#include <string_view>
#include <vector>

#include "desktop/grid/ServerGridOrder.h"
#include "platform/ServerGrid.h"

namespace vantrel {

// A cell's text as it is shown: control characters come from servers' names and would be drawn as boxes.
QString withoutControls(std::string_view text);

class ServerGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int batchInterval = 60;  // milliseconds

  // `grid` must outlive the model. What it holds is shown at once.
  explicit ServerGridModel(ServerGrid& grid, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Positions are the table's rows, from 0. 0 is an entry that is gone: the grid was cleared and no batch came since.
  ServerGridOrder::Entry entryAt(int position) const { return order_.at(position); }
  int positionOf(ServerGridOrder::Entry entry) const { return order_.find(entry); }
  const ServerGridOrder& order() const { return order_; }
  // True while a change of the server waits for the next batch.
  bool isDirty(ServerGridOrder::Entry entry) const;
  // True while any change does.
  bool somethingWaits() const;
  // What people call the column, also where its header is an image. Columns number from 1.
  QString columnName(int column) const;
  // The text and the count of a group row.
  QString groupTitle(ServerGridOrder::Entry group) const;

  // What the user asks for; shown at once, `rearranged` follows.
  void sortBy(int column, SortDirection direction);
  void groupBy(int column);
  void fold(ServerGridOrder::Entry group, Folding folding);

 Q_SIGNALS:
  void aboutToShow();
  void shown();
  void columnsShown();
  void lookShown();
  void rearranged();

 private:
  void mark(int row);
  void schedule();
  void release();
  void showBatch();
  void publish();

  ServerGrid& grid_;
  ServerGridOrder order_;
  std::vector<int> dirtyRows_;
  std::vector<bool> dirty_;  // by row number less 1
  bool columnsDirty_ = true;
  bool lookDirty_ = true;
  int shownRows_ = 0;
  int shownColumns_ = 0;
  QTimer timer_;
  QElapsedTimer sinceBatch_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// The rows of one ListView as the toolkit's tables want them, in the order in which it is sorted. It keeps the texts
// that are on the screen: a list that is emptied and filled again is shown once, when it is full.
#pragma once

#include <QAbstractTableModel>
#include <QTimer>
#include <vector>

#include "platform/ListView.h"

namespace vantrel {

class ListTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `list` must outlive the model.
  explicit ListTableModel(ListView& list, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // The row of the list that stands at a position; 0 when there is none.
  int rowAt(const QModelIndex& index) const;

  // Shows at once what has changed; it would else be shown a moment later.
  void showChanges();

 Q_SIGNALS:
  // The list was emptied or sorted anew, and what stands in this row now is about something else.
  void rowReplaced(int row);

 private:
  using Row = std::vector<QString>;

  void noteChange(int firstRow);
  Row read(int row) const;
  void resizeTo(int count);

  ListView& list_;
  std::vector<Row> rows_;
  std::vector<int> order_;  // the list's rows from top to bottom
  int firstChanged_ = 1;    // row number of the first that may differ from what is shown
  bool refilled_ = false;
  QTimer pause_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

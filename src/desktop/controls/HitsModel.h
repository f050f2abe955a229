// The lines of a list box as a table of two columns, in the order that the reader wants. The list box keeps its own:
// sorting moves nothing in it. A line is a player's name, a TAB and an address.
#pragma once

#include <QAbstractTableModel>
#include <QTimer>
#include <string>
#include <vector>

#include "platform/Controls.h"

namespace vantrel {

class HitsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column : int { player = 0, server = 1 };

  // `list` must outlive the model.
  explicit HitsModel(ListBox& list, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // By a column, or, with -1, in the order in which the lines came.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  // The number of the line in a row, -1 for none, and the row of a line.
  int lineAt(const QModelIndex& index) const;
  QModelIndex rowOf(int line) const;

  // Shows at once what has changed; it would else be shown a moment later.
  void showChanges();

 Q_SIGNALS:
  void upToDate();

 private:
  struct Line {
    std::string text;
    QString cells[2];
    std::string keys[2];  // in whose order the lines stand
  };

  static Line read(const std::string& text);
  void readLines();
  void putInOrder();

  ListBox& list_;
  std::vector<Line> lines_;
  std::vector<int> order_;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
  QTimer pause_;
  Connection changed_;
};

}  // namespace vantrel

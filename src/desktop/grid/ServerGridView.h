// The server list of the main window: the grouping bar, the header and the rows of one ServerGrid.
//
// The grid holds the rows and their numbers; the view sorts, groups and folds for itself. ServerGridOrder decides what
// stands where, ServerGridModel when it is shown, ServerGridTable shows it. Start reading at ServerGridModel.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "desktop/grid/GroupingBar.h"
#include "desktop/grid/ServerGridColumns.h"
#include "desktop/grid/ServerGridHeader.h"
#include "desktop/grid/ServerGridModel.h"
#include "desktop/grid/ServerGridTable.h"

namespace vantrel {

class ServerGridView : public QWidget {
  Q_OBJECT

 public:
  // `grid` must outlive the view.
  explicit ServerGridView(ServerGrid& grid, QWidget* parent = nullptr);

  ServerGridModel& model() { return *model_; }
  ServerGridTable& table() { return *table_; }
  ServerGridHeader& header() { return *header_; }
  GroupingBar& groupingBar() { return *bar_; }

  // As a click on a header and a drop on the bar do it. Columns number from 1; 0 is the order of arrival, no grouping.
  void sortBy(int column, SortDirection direction);
  void groupBy(int column);

  // The numbers of all rows of the grid, also the hidden ones, in the order in which the user sees them.
  std::vector<int> rowsInOrder() const { return model_->order().allRows(); }

  // Which columns are shown, in what order and how wide, as one line of text; see ColumnLayout. What is set is applied
  // when the columns come, if there are none yet; an empty text gives the columns as the grid has them.
  std::string columnLayout() const { return columns_->text(); }
  void setColumnLayout(const std::string& text) { columns_->setText(text); }

 Q_SIGNALS:
  // The user has changed the columns; fired when he has been done with it for a moment.
  void columnLayoutChanged();

 private:
  QIcon columnIcon(int column) const;
  void connectHeader();
  void connectBar();
  void showGrouping();

  ServerGrid& grid_;
  ServerGridModel* model_;
  GroupingBar* bar_;
  ServerGridTable* table_;
  ServerGridHeader* header_;
  ServerGridColumns* columns_;
};

}  // namespace vantrel

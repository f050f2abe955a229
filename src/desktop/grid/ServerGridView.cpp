#include "desktop/grid/ServerGridView.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desktop/grid/ServerGridDelegate.h"
#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {

ServerGridView::ServerGridView(ServerGrid& grid, QWidget* parent)
    : QWidget(parent),
      grid_(grid),
      model_(new ServerGridModel(grid, this)),
      bar_(new GroupingBar(grid, this)),
      table_(new ServerGridTable(grid, *model_, this)),
      header_(new ServerGridHeader(table_)) {
  setObjectName(QStringLiteral("grdServers"));
  setAccessibleName(QStringLiteral("Server list"));
  table_->setItemDelegate(new ServerGridDelegate(grid, *model_, table_));
  table_->setHorizontalHeader(header_);
  header_->setSortIndicatorShown(true);  // only now: the table switches it off on a header that it takes
  columns_ = new ServerGridColumns(grid, *model_, *header_, this);
  connect(columns_, &ServerGridColumns::changed, this, &ServerGridView::columnLayoutChanged);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar_);
  layout->addWidget(table_, 1);
  connectHeader();
  connectBar();
  showGrouping();
}

QIcon ServerGridView::columnIcon(int column) const {
  return gridIcon(grid_.column(column).image);
}

void ServerGridView::connectHeader() {
  connect(header_, &QHeaderView::sortIndicatorChanged, this, [this](int column, Qt::SortOrder order) {
    model_->sortBy(column + 1, order == Qt::AscendingOrder ? SortDirection::ascending : SortDirection::descending);
  });
  connect(header_, &ServerGridHeader::draggedOut, this, [this](int column, const QPoint& position) {
    const QPoint inBar = bar_->mapFromGlobal(position);
    const bool over = bar_->rect().contains(inBar);
    bar_->showOffer(over ? model_->columnName(column + 1) : QString(), columnIcon(column + 1), inBar);
  });
  connect(header_, &ServerGridHeader::dragReturned, this, [this] { bar_->showOffer({}, {}, {}); });
  connect(header_, &ServerGridHeader::dropped, this, [this](int column, const QPoint& position) {
    if (bar_->rect().contains(bar_->mapFromGlobal(position))) {
      groupBy(column + 1);
    }
  });
}

void ServerGridView::connectBar() {
  connect(bar_, &GroupingBar::closed, this, [this] { groupBy(0); });
  connect(bar_, &GroupingBar::chipDropped, this, [this](const QPoint& position) {
    if (header_->rect().contains(header_->mapFromGlobal(position))) {
      groupBy(0);
    }
  });
  connect(model_, &ServerGridModel::lookShown, this, &ServerGridView::showGrouping);
}

void ServerGridView::sortBy(int column, SortDirection direction) {
  const QSignalBlocker quiet(header_);
  header_->setSortIndicator(column - 1,
                            direction == SortDirection::ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
  header_->viewport()->update();
  model_->sortBy(column, direction);
}

void ServerGridView::groupBy(int column) {
  table_->forgetGroup();
  model_->groupBy(column);
  showGrouping();
}

void ServerGridView::showGrouping() {
  const int column = model_->order().groupColumn();
  bar_->showChip(column == 0 ? QString() : model_->columnName(column), column == 0 ? QIcon() : columnIcon(column));
}

}  // namespace vantrel

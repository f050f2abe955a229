#include "desktop/controls/ListTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

namespace vantrel {
namespace {

constexpr int leastRowHeight = 18;     // pixels at 100 %
constexpr int leastHeaderHeight = 21;  // likewise

}  // namespace

ListTable::ListTable(ListView& list, const char* name, const QString& accessibleName, QWidget* parent)
    : QTableView(parent), model_(new ListTableModel(list, this)) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  setShowGrid(false);
  setCornerButtonEnabled(false);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setModel(model_);
  applyColumns(list);
  connect(model_, &ListTableModel::rowReplaced, this, [this](int row) {
    selectionModel()->select(model_->index(row, 0), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
  });
  bindings_.bindPlace(*this, list.place);
}

void ListTable::applyColumns(const ListView& list) {
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(std::max(leastRowHeight, fontMetrics().height() + 3));
  horizontalHeader()->setFixedHeight(std::max(leastHeaderHeight, fontMetrics().height() + 6));
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setStretchLastSection(true);
  for (std::size_t column = 0; column + 1 < list.columns().size(); ++column) {
    setColumnWidth(static_cast<int>(column), list.columns()[column].width);
  }
}

QString ListTable::selectedText() const {
  QModelIndexList rows = selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  QStringList lines;
  for (const QModelIndex& row : rows) {
    QStringList cells;
    for (int column = 0; column < model_->columnCount(); ++column) {
      cells << row.siblingAtColumn(column).data().toString();
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  return lines.join(QLatin1Char('\n'));
}

void ListTable::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy)) {
    QTableView::keyPressEvent(event);
  } else if (selectionModel()->hasSelection()) {
    QGuiApplication::clipboard()->setText(selectedText());
  }
}

}  // namespace vantrel

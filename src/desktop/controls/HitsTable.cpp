#include "desktop/controls/HitsTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/controls/RowDelegate.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int leastRowHeight = 20;                        // pixels at 100 %
constexpr const char* address = "255.255.255.255:65535";  // the longest
constexpr int cellMargins = 16;                           // pixels at 100 %, of both sides

}  // namespace

HitsTable::HitsTable(ListBox& list, QWidget* parent)
    : QTableView(parent), list_(list), hits_(new HitsModel(list, this)) {
  setObjectName("lstPlayers");
  setAccessibleName(tr("Players found"));
  setShowGrid(false);
  setCornerButtonEnabled(false);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setModel(hits_);
  setItemDelegate(new RowDelegate(this));
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(std::max(leastRowHeight, fontMetrics().height() + 5));
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setStretchLastSection(true);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &HitsTable::sortBy);
  connect(hits_, &HitsModel::rowsAboutToBeRemoved, this, [this] { followsList_ = true; });
  connect(hits_, &HitsModel::upToDate, this, &HitsTable::showSelection);
  showSelection();
}

// Ascending, descending, and then as they were found.
void HitsTable::sortBy(int column) {
  QHeaderView* const header = horizontalHeader();
  const bool again = header->isSortIndicatorShown() && header->sortIndicatorSection() == column;
  const bool wasAscending = header->sortIndicatorOrder() == Qt::AscendingOrder;
  followsList_ = true;
  if (again && !wasAscending) {
    header->setSortIndicatorShown(false);
    hits_->sort(-1);
    return;
  }
  const Qt::SortOrder order = again ? Qt::DescendingOrder : Qt::AscendingOrder;
  header->setSortIndicatorShown(true);
  header->setSortIndicator(column, order);
  hits_->sort(column, order);
}

void HitsTable::showSelection() {
  followsList_ = true;
  const QModelIndex row = hits_->rowOf(list_.selected());
  if (row.isValid()) {
    setCurrentIndex(row);
  } else {
    selectionModel()->clear();
  }
  followsList_ = false;
}

void HitsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!followsList_) {
    list_.select(hits_->lineAt(current));
  }
}

// The toolkit makes the first row the current one then, which nobody has asked for.
void HitsTable::focusInEvent(QFocusEvent* event) {
  followsList_ = true;
  QTableView::focusInEvent(event);
  showSelection();
}

// What the user means are the rows as he sees them, also where others have come since.
void HitsTable::mousePressEvent(QMouseEvent* event) {
  if (list_.count() < hits_->rowCount()) {
    hits_->showChanges();  // What is gone cannot be meant.
  }
  QTableView::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) {
    Q_EMIT picked();
  }
}

void HitsTable::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) {
    Q_EMIT shown();
  }
}

void HitsTable::keyPressEvent(QKeyEvent* event) {
  hits_->showChanges();
  const bool isPress = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (event->matches(QKeySequence::Copy)) {
    if (list_.selected() >= 0) {
      QGuiApplication::clipboard()->setText(fromCp1252(list_.line(list_.selected())));
    }
  } else if (isPress && currentIndex().isValid()) {
    Q_EMIT picked();
  } else {
    QTableView::keyPressEvent(event);
  }
}

// The lines are what the keys move along, not the cells.
QModelIndex HitsTable::moveCursor(CursorAction action, Qt::KeyboardModifiers held) {
  switch (action) {
    case MoveHome:
      return hits_->index(0, 0);
    case MoveEnd:
      return hits_->index(hits_->rowCount() - 1, 0);
    case MoveLeft:
    case MoveRight:
      return currentIndex();
    default:
      return QTableView::moveCursor(action, held);
  }
}

// The address is always whole, and the name has what is left.
void HitsTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  const int server = fontMetrics().horizontalAdvance(QLatin1String(address)) + cellMargins;
  setColumnWidth(HitsModel::player, std::max(server / 2, viewport()->width() - server));
}

}  // namespace vantrel

#include "desktop/grid/ServerGridTable.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {

ServerGridTable::ServerGridTable(ServerGrid& grid, ServerGridModel& model, QWidget* parent)
    : QTableView(parent), grid_(grid), model_(model), selected_(grid.currentRow()) {
  setObjectName(QStringLiteral("grdServersTable"));
  setAccessibleName(QStringLiteral("Server list"));
  setShowGrid(false);
  setFrameShape(QFrame::NoFrame);
  setCornerButtonEnabled(false);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setWordWrap(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setModel(&model_);
  connect(&model_, &ServerGridModel::aboutToShow, this, &ServerGridTable::rememberSight);
  connect(&model_, &ServerGridModel::shown, this, &ServerGridTable::restoreSight);
  connect(&model_, &ServerGridModel::rearranged, this, [this] {
    doItemsLayout();
    showSelection();
    viewport()->update();
  });
  connect(&model_, &ServerGridModel::lookShown, this, &ServerGridTable::applyLook);
  connections_.push_back(grid_.cleared.connect([this] {
    selected_ = 0;
    cursorGroup_ = 0;
    toTop_ = true;
  }));
  connections_.push_back(grid_.rowSelected.connect([this](int row, int) {
    if (row != selected_) {
      selected_ = row;
      cursorGroup_ = 0;
      showSelection();
      viewport()->update();
    }
  }));
  applyLook();
}

int ServerGridTable::pitch() const {
  return std::max(1, grid_.look().rowHeight);
}

int ServerGridTable::firstInSight() const {
  return verticalScrollBar()->value() / pitch();
}

void ServerGridTable::applyLook() {
  const GridLook& look = grid_.look();
  verticalHeader()->setDefaultSectionSize(pitch());
  verticalScrollBar()->setSingleStep(pitch());
  QPalette colored = palette();
  colored.setColor(QPalette::Base, gridColor(look.background));
  colored.setColor(QPalette::Text, gridColor(look.text));
  // The rows are painted before the cells; the style must not paint its own selection over them.
  colored.setColor(QPalette::Highlight, Qt::transparent);
  setPalette(colored);
  backdrop_ = QPixmap();
  viewport()->update();
}

// The selected row holds its place while it is in sight, else the topmost entry that is still shown after the batch.
// Rows that change are no hold: one that moves away because of its new text would take the view along. A list that
// nobody has scrolled, with nothing selected in sight, stays at its top.
void ServerGridTable::rememberSight() {
  sight_.clear();
  shown_ = entriesInSight();
  sightChanged_ = std::any_of(shown_.begin(), shown_.end(), [this](ServerGridOrder::Entry entry) {
    return entry <= 0 || model_.isDirty(entry);  // A group row tells how many rows it has.
  });
  const int top = verticalScrollBar()->value();
  for (int position = firstInSight(); position * pitch() < top + viewport()->height(); ++position) {
    const ServerGridOrder::Entry entry = model_.entryAt(position);
    if (entry == 0) {
      return;
    }
    if (!model_.isDirty(entry)) {
      sight_.push_back({entry, position, position * pitch() - top});
    }
  }
  const ServerGridOrder::Entry cursor = cursorGroup_ != 0 ? cursorGroup_ : selected_;
  const auto held = std::find_if(sight_.begin(), sight_.end(), [&](const Sight& seen) { return seen.entry == cursor; });
  if (held != sight_.end()) {
    std::rotate(sight_.begin(), held, held + 1);
  } else if (top == 0) {
    sight_.clear();
  }
}

void ServerGridTable::restoreSight() {
  doItemsLayout();
  if (std::exchange(toTop_, false)) {
    verticalScrollBar()->setValue(0);
  }
  for (const Sight& seen : sight_) {
    const int position = model_.positionOf(seen.entry);
    if (position >= 0) {
      verticalScrollBar()->setValue(position * pitch() - seen.y);
      stripeShift_ = (stripeShift_ + position - seen.position) % 2;
      break;
    }
  }
  sight_.clear();
  showSelection();
  if (sightChanged_ || entriesInSight() != shown_) {
    viewport()->update();
  }
}

std::vector<ServerGridOrder::Entry> ServerGridTable::entriesInSight() const {
  std::vector<ServerGridOrder::Entry> entries;
  const int end = verticalScrollBar()->value() + viewport()->height();
  for (int position = firstInSight(); position * pitch() < end && position < model_.rowCount(); ++position) {
    entries.push_back(model_.entryAt(position));
  }
  return entries;
}

// The base class paints everything anew whenever rows come, also those that come far out of sight: in a sweep that is
// most of the work. Here a batch finds out for itself whether anything in sight has changed.
void ServerGridTable::doItemsLayout() {
  updateGeometries();
  verticalHeader()->setOffset(verticalScrollBar()->value());
  verticalHeader()->setUpdatesEnabled(true);
}

void ServerGridTable::dataChanged(const QModelIndex& /*first*/, const QModelIndex& /*last*/,
                                  const QList<int>& /*roles*/) {}

void ServerGridTable::showSelection() {
  const int position = model_.positionOf(selected_);
  const QModelIndex selected = model_.index(position, column_);
  const QModelIndex cursor = cursorGroup_ == 0 ? selected : model_.index(model_.positionOf(cursorGroup_), 0);
  if (!selected.isValid()) {
    selectionModel()->clearSelection();
  } else if (!selectionModel()->isSelected(selected)) {
    selectionModel()->select(selected, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  if (cursor != selectionModel()->currentIndex()) {
    selectionModel()->setCurrentIndex(cursor, QItemSelectionModel::NoUpdate);
  }
}

void ServerGridTable::putCursorOn(ServerGridOrder::Entry entry) {
  cursorGroup_ = entry < 0 ? entry : 0;
  selected_ = entry > 0 ? entry : selected_;
  showSelection();
  viewport()->update();
}

int ServerGridTable::cursorPosition() const {
  return model_.positionOf(cursorGroup_ != 0 ? cursorGroup_ : selected_);
}

// The base class would put the cursor on the first row.
void ServerGridTable::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void ServerGridTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) {
    viewport()->update();
  }
}

// The picture behind the rows stands still while they scroll.
void ServerGridTable::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  viewport()->update();
}

}  // namespace vantrel

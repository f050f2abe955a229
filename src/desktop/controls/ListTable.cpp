#include "desktop/controls/ListTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/controls/CalmStyle.h"
#include "desktop/controls/Inks.h"
#include "desktop/controls/RowDelegate.h"
#include "desktop/grid/MouseButtons.h"

namespace vantrel {
namespace {

constexpr qreal headerInk = 0.15;      // share of the text's colour in the header's ground
constexpr int leastRowHeight = 18;     // pixels at 100 %
constexpr int leastHeaderHeight = 21;  // likewise

}  // namespace

ListTable::ListTable(ListView& list, const char* name, const QString& accessibleName, QWidget* parent)
    : QTableView(parent), list_(list), model_(new ListTableModel(list, this)) {
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
  setItemDelegate(new RowDelegate(this));
  applyColumns(list);
  connect(model_, &ListTableModel::rowReplaced, this, [this](int row) {
    selectionModel()->select(model_->index(row, 0), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
  });
  bindings_.bindPlace(*this, list.place);
  for (Field<Color>* const color : {&list.foreColor, &list.backColor}) {
    bindings_.keep(color->changed.connect([this] { applyColors(); }));
  }
  applyColors();
}

// The header stands out from the rows, in their own colours.
void ListTable::applyColors() {
  const Color fore = list_.foreColor.get();
  const Color back = list_.backColor.get();
  QPalette palette;
  if (!colors::isSystem(back)) {
    const QColor ground = screenColor(back);
    const QColor ink = colors::isSystem(fore) ? readable(screenColor(fore), ground) : screenColor(fore);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
      palette.setColor(role, ground);
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(role, ink);
    }
    palette.setColor(QPalette::Button, mixed(ground, ink, headerInk));
  } else if (!colors::isSystem(fore)) {
    palette.setColor(QPalette::Text, screenColor(fore));
  }
  setPalette(palette);
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

void ListTable::offerSorting() {
  horizontalHeader()->setSectionsClickable(true);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int section) { list_.columnClicked.fire(section + 1); });
  bindings_.keep(list_.sort.changed.connect([this] { showSorting(); }));
  showSorting();
}

void ListTable::showSorting() {
  const ListSort sort = list_.sort.get();
  horizontalHeader()->setSortIndicatorShown(sort.on);
  horizontalHeader()->setSortIndicator(sort.column - 1,
                                       sort.order == SortOrder::ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ListTable::tellSelection() {
  const QModelIndexList rows = selectionModel()->selectedRows();
  list_.select(rows.isEmpty()
                   ? 0
                   : model_->rowAt(rows.contains(currentIndex().siblingAtColumn(0)) ? currentIndex() : rows.first()));
}

// What the user means are the rows as they are now. A listener may run other events, so nothing of the table is looked
// at behind it.
void ListTable::mousePressEvent(QMouseEvent* event) {
  model_->showChanges();
  QTableView::mousePressEvent(event);
  tellSelection();
  if (const auto button = toMouseButton(event->button())) {
    list_.mouseButton.fire(*button);
  }
}

// Of a right click the press has told already.
void ListTable::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) {
    model_->showChanges();
    tellSelection();
    list_.mouseButton.fire(MouseButton::right);
  }
}

QString ListTable::selectedText() const {
  QModelIndexList rows = selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  QStringList lines;
  for (const QModelIndex& row : rows) {
    QStringList cells;
    for (int column = 0; column < model_->columnCount(); ++column) {
      cells << row.siblingAtColumn(column).data(Qt::EditRole).toString();
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

#include "desktop/grid/ServerGridColumns.h"

#include <QCoreApplication>
#include <QMenu>
#include <QScopedValueRollback>
#include <utility>
#include <vector>

namespace vantrel {

ServerGridColumns::ServerGridColumns(const ServerGrid& grid, const ServerGridModel& model, ServerGridHeader& header,
                                     QObject* parent)
    : QObject(parent), grid_(grid), model_(model), header_(header) {
  pause_.setSingleShot(true);
  pause_.setInterval(changeDelay);
  header_.setMaximumSectionSize(ColumnLayout::widest);
  connect(&pause_, &QTimer::timeout, this, &ServerGridColumns::changed);
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &ServerGridColumns::tell);
  connect(&model_, &ServerGridModel::columnsShown, this, &ServerGridColumns::takeColumns);
  connect(&header_, &QHeaderView::sectionMoved, this, &ServerGridColumns::followMove);
  connect(&header_, &ServerGridHeader::widthDragged, this,
          [this](int column, int width) { followWidth(column + 1, width); });
  connect(&header_, &ServerGridHeader::menuWanted, this, &ServerGridColumns::openMenu);
  takeColumns();
}

std::string ServerGridColumns::text() const {
  return layout_.places().empty() ? text_ : layout_.text();
}

void ServerGridColumns::setText(const std::string& text) {
  pause_.stop();
  text_ = text;
  layout_.read(text_);
  apply();
}

void ServerGridColumns::takeColumns() {
  std::vector<ColumnLayout::Column> standing;
  for (int column = 1; column <= model_.columnCount(); ++column) {
    standing.push_back({grid_.column(column).key, grid_.column(column).width});
  }
  layout_ = ColumnLayout(std::move(standing));
  layout_.read(text_);
  apply();
}

// A column can be moved and given its width only while it is shown.
void ServerGridColumns::apply() {
  const QScopedValueRollback<Hand> program(hand_, Hand::program);
  int visual = 0;
  for (const ColumnPlace& place : layout_.places()) {
    header_.setSectionHidden(place.column - 1, false);
    header_.moveSection(header_.visualIndex(place.column - 1), visual++);
  }
  applyWidths();
  for (const ColumnPlace& place : layout_.places()) {
    header_.setSectionHidden(place.column - 1, !place.shown);
  }
}

void ServerGridColumns::applyWidths() {
  for (const ColumnPlace& place : layout_.places()) {
    header_.resizeSection(place.column - 1, place.width);
  }
}

// The menu lives on its own: who asked for it does not wait for an answer.
void ServerGridColumns::openMenu(const QPoint& globalPosition) {
  auto* const menu = new QMenu(&header_);
  menu->setObjectName(QStringLiteral("columnMenu"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (int column = 1; column <= model_.columnCount(); ++column) {
    QAction* const entry = menu->addAction(model_.columnName(column).replace('&', QLatin1String("&&")));
    entry->setCheckable(true);
    entry->setChecked(layout_.isShown(column));
    entry->setEnabled(layout_.canToggle(column));
    connect(entry, &QAction::triggered, this, [this, column] {
      ColumnLayout toggled = layout_;
      toggled.toggle(column);
      if (takeOver(toggled)) {
        apply();
      }
    });
  }
  menu->addSeparator();
  connect(menu->addAction(tr("Reset Columns")), &QAction::triggered, this, [this] {
    ColumnLayout standing = layout_;
    standing.reset();
    if (takeOver(standing)) {
      apply();
    }
  });
  menu->popup(globalPosition);
}

// Another column may be the last one now, which the header stretches, and the one before it gets its own width again.
void ServerGridColumns::followMove() {
  if (hand_ == Hand::program) {
    return;
  }
  std::vector<int> order;
  for (int visual = 0; visual < header_.count(); ++visual) {
    order.push_back(header_.logicalIndex(visual) + 1);
  }
  ColumnLayout moved = layout_;
  moved.setOrder(order);
  if (takeOver(moved)) {
    applyWidths();
  }
}

void ServerGridColumns::followWidth(int column, int width) {
  if (hand_ == Hand::user && column != layout_.rightmost()) {
    ColumnLayout resized = layout_;
    resized.setWidth(column, width);
    takeOver(resized);
  }
}

bool ServerGridColumns::takeOver(const ColumnLayout& layout) {
  if (layout == layout_) {
    return false;
  }
  layout_ = layout;
  text_ = layout_.text();
  pause_.start();
  return true;
}

void ServerGridColumns::tell() {
  if (pause_.isActive()) {
    pause_.stop();
    Q_EMIT changed();
  }
}

}  // namespace vantrel

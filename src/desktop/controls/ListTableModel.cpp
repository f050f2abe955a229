#include "desktop/controls/ListTableModel.h"

#include <algorithm>
#include <utility>

#include "desktop/controls/PlainText.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int batchInterval = 30;         // milliseconds
constexpr qsizetype longestShown = 1000;  // characters; more never fit

}  // namespace

ListTableModel::ListTableModel(ListView& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {
  pause_.setSingleShot(true);
  pause_.setInterval(batchInterval);
  connect(&pause_, &QTimer::timeout, this, &ListTableModel::showChanges);
  showChanges();
  connections_.push_back(list.rowAdded.connect([this] { noteChange(list_.rowCount()); }));
  connections_.push_back(list.cellChanged.connect([this](int row, int) { noteChange(row); }));
  const auto replaceAll = [this] {
    refilled_ = true;
    noteChange(1);
  };
  connections_.push_back(list.cleared.connect(replaceAll));
  connections_.push_back(list.sort.changed.connect(replaceAll));
}

void ListTableModel::noteChange(int firstRow) {
  firstChanged_ = pause_.isActive() ? std::min(firstChanged_, firstRow) : firstRow;
  if (!pause_.isActive()) {
    pause_.start();
  }
}

void ListTableModel::showChanges() {
  pause_.stop();
  const bool refilled = std::exchange(refilled_, false);
  const int shownBefore = rowCount();
  resizeTo(list_.rowCount());
  order_ = list_.rowsInOrder();
  if (list_.sort.get().on) {  // One row may have moved all others.
    firstChanged_ = 1;
  }
  for (int row = firstChanged_; row <= rowCount(); ++row) {
    Row& shown = rows_[static_cast<std::size_t>(row - 1)];
    Row fresh = read(order_[static_cast<std::size_t>(row - 1)]);
    const bool replaced = refilled && row <= shownBefore && fresh.front() != shown.front();
    shown = std::move(fresh);
    if (replaced) {
      Q_EMIT rowReplaced(row - 1);
    }
  }
  if (firstChanged_ <= rowCount()) {
    Q_EMIT dataChanged(index(firstChanged_ - 1, 0), index(rowCount() - 1, columnCount() - 1));
  }
}

void ListTableModel::resizeTo(int count) {
  const int before = rowCount();
  if (count < before) {
    beginRemoveRows({}, count, before - 1);
    rows_.resize(static_cast<std::size_t>(count));
    endRemoveRows();
  } else if (count > before) {
    beginInsertRows({}, before, count - 1);
    rows_.resize(static_cast<std::size_t>(count), Row(list_.columns().size()));
    endInsertRows();
  }
}

ListTableModel::Row ListTableModel::read(int row) const {
  Row texts;
  for (int column = 1; column <= columnCount(); ++column) {
    texts.push_back(oneLine(fromCp1252(list_.cell(row, column))));
  }
  return texts;
}

int ListTableModel::rowAt(const QModelIndex& index) const {
  const auto position = static_cast<std::size_t>(index.row());
  return index.isValid() && position < order_.size() ? order_[position] : 0;
}

int ListTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ListTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list_.columns().size());
}

QVariant ListTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const QString& text = rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
  switch (role) {
    case Qt::DisplayRole:
      return text.size() > longestShown ? text.left(longestShown) : text;
    case Qt::EditRole:
    case Qt::AccessibleTextRole:
      return text;
    case Qt::ToolTipRole:
      return plainToolTip(text);
    default:
      return {};
  }
}

QVariant ListTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool exists = orientation == Qt::Horizontal && section >= 0 && section < columnCount();
  if (exists && role == Qt::DisplayRole) {
    return fromCp1252(list_.columns()[static_cast<std::size_t>(section)].header);
  }
  return exists && role == Qt::TextAlignmentRole ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : QVariant();
}

}  // namespace vantrel

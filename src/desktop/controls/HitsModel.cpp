#include "desktop/controls/HitsModel.h"

#include <algorithm>
#include <numeric>

#include "desktop/controls/PlainText.h"
#include "desktop/grid/NaturalOrder.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int batchInterval = 100;          // milliseconds
constexpr std::size_t longestShown = 1000;  // characters of a name

}  // namespace

HitsModel::HitsModel(ListBox& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {
  pause_.setSingleShot(true);
  pause_.setInterval(batchInterval);
  connect(&pause_, &QTimer::timeout, this, &HitsModel::showChanges);
  showChanges();
  changed_ = list.changed.connect([this] {
    if (!pause_.isActive()) {
      pause_.start();
    }
  });
}

void HitsModel::showChanges() {
  pause_.stop();
  const int before = rowCount();
  const int now = list_.count();
  if (now < before) {
    beginRemoveRows({}, now, before - 1);
    order_.resize(static_cast<std::size_t>(now));
    endRemoveRows();
  }
  readLines();
  if (now > before) {
    beginInsertRows({}, before, now - 1);
    order_.resize(static_cast<std::size_t>(now));
    putInOrder();
    endInsertRows();
  } else {
    putInOrder();
  }
  if (now > 0) {
    Q_EMIT dataChanged(index(0, 0), index(now - 1, columnCount() - 1));
  }
  Q_EMIT upToDate();
}

void HitsModel::readLines() {
  lines_.resize(static_cast<std::size_t>(list_.count()));
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const std::string text = list_.line(static_cast<int>(i));
    if (lines_[i].text != text || text.empty()) {
      lines_[i] = read(text);
    }
  }
}

// A name may hold a TAB; the address, which comes last, holds none.
HitsModel::Line HitsModel::read(const std::string& text) {
  const std::size_t tab = std::min(text.rfind('\t'), text.size());
  const std::string parts[2] = {text.substr(0, std::min(tab, longestShown)),
                                text.substr(std::min(tab + 1, text.size()))};
  Line line{text, {}, {}};
  for (std::size_t i = 0; i < 2; ++i) {
    line.cells[i] = oneLine(fromCp1252(parts[i]));
    line.keys[i] = naturalKey(parts[i]);
  }
  return line;
}

void HitsModel::putInOrder() {
  std::iota(order_.begin(), order_.end(), 0);
  if (sortColumn_ < 0) {
    return;
  }
  const auto keyOf = [this](int line) -> const std::string& {
    return lines_[static_cast<std::size_t>(line)].keys[sortColumn_];
  };
  std::stable_sort(order_.begin(), order_.end(), [&](int a, int b) {
    return sortOrder_ == Qt::AscendingOrder ? keyOf(a) < keyOf(b) : keyOf(b) < keyOf(a);
  });
}

void HitsModel::sort(int column, Qt::SortOrder order) {
  sortColumn_ = column;
  sortOrder_ = order;
  showChanges();
}

int HitsModel::lineAt(const QModelIndex& index) const {
  const auto row = static_cast<std::size_t>(index.row());
  return index.isValid() && row < order_.size() ? order_[row] : -1;
}

QModelIndex HitsModel::rowOf(int line) const {
  const auto found = std::find(order_.begin(), order_.end(), line);
  return found == order_.end() ? QModelIndex() : index(static_cast<int>(found - order_.begin()), 0);
}

int HitsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int HitsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 2;
}

QVariant HitsModel::data(const QModelIndex& index, int role) const {
  const int line = lineAt(index);
  if (line < 0) {
    return {};
  }
  const QString& text = lines_[static_cast<std::size_t>(line)].cells[index.column()];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return text;
    case Qt::ToolTipRole:
      return plainToolTip(text);
    default:
      return {};
  }
}

QVariant HitsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) {
    return {};
  }
  if (role == Qt::DisplayRole) {
    return section == player ? tr("Player") : tr("Server");
  }
  return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : QVariant();
}

}  // namespace vantrel

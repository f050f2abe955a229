#include "desktop/controls/FavesListModel.h"

#include <algorithm>
#include <string_view>

#include "desktop/controls/PlainText.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int batchInterval = 30;           // milliseconds
constexpr std::size_t longestShown = 1000;  // characters; more never fit

std::string_view beginning(const std::string& text) {
  return std::string_view(text).substr(0, longestShown);
}

QString shownText(const std::string& text) {
  return oneLine(fromCp1252(text));
}

bool isBlank(const std::string& text) {
  return shownText(text).trimmed().isEmpty();
}

}  // namespace

bool FavesListModel::Row::shows(const FavoriteItem& item) const {
  return name == beginning(item.name) && hostname == beginning(item.hostname) && gametype == beginning(item.gametype) &&
         locked == !item.password.empty();
}

FavesListModel::Row FavesListModel::rowOf(const FavoriteItem& item) {
  return {std::string(beginning(item.name)), std::string(beginning(item.hostname)),
          std::string(beginning(item.gametype)), !item.password.empty()};
}

FavesListModel::FavesListModel(FavoritesList& list, QObject* parent)
    : QAbstractListModel(parent), list_(list), changed_(list.changed.connect([this] { noteChange(); })) {
  pause_.setSingleShot(true);
  pause_.setInterval(batchInterval);
  connect(&pause_, &QTimer::timeout, this, &FavesListModel::showChanges);
  showChanges();
}

void FavesListModel::noteChange() {
  if (!pause_.isActive()) {
    pause_.start();
  }
}

void FavesListModel::showChanges() {
  pause_.stop();
  resizeTo(list_.count());
  int first = rowCount();
  int last = -1;
  for (int i = 0; i < rowCount(); ++i) {
    Row& row = rows_[static_cast<std::size_t>(i)];
    const FavoriteItem& item = list_.at(i + 1);
    if (!row.shows(item)) {
      row = rowOf(item);
      first = std::min(first, i);
      last = i;
    }
  }
  if (last >= 0) {
    Q_EMIT dataChanged(index(first), index(last));
  }
  Q_EMIT upToDate();
}

void FavesListModel::resizeTo(int count) {
  const int before = rowCount();
  if (count < before) {
    beginRemoveRows({}, count, before - 1);
    rows_.resize(static_cast<std::size_t>(count));
    endRemoveRows();
  } else if (count > before) {
    beginInsertRows({}, before, count - 1);
    rows_.resize(static_cast<std::size_t>(count));
    endInsertRows();
  }
}

int FavesListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant FavesListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return title(row);
    case hostnameRole:
      return shownText(row.hostname);
    case gametypeRole:
      return shownText(row.gametype);
    case lockedRole:
      return row.locked;
    case namelessRole:
      return isBlank(row.name);
    case Qt::AccessibleTextRole:
      return told(row);
    case Qt::ToolTipRole:
      return plainToolTip(told(row));
    default:
      return {};
  }
}

QString FavesListModel::title(const Row& row) {
  if (!isBlank(row.name)) {
    return shownText(row.name);
  }
  const bool isEmpty = isBlank(row.hostname) && isBlank(row.gametype) && !row.locked;
  return isEmpty ? tr("(empty)") : tr("(no name)");
}

QString FavesListModel::told(const Row& row) {
  QStringList texts{title(row), shownText(row.hostname), shownText(row.gametype),
                    row.locked ? tr("password is stored") : QString()};
  texts.removeAll(QString());
  return texts.join(QStringLiteral(", "));
}

}  // namespace vantrel

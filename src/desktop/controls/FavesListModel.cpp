#include "desktop/controls/FavesListModel.h"

#include "desktop/controls/PlainText.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int batchInterval = 30;           // milliseconds
constexpr std::size_t longestShown = 1000;  // characters; more never fit

QString shownText(const std::string& text) {
  return oneLine(fromCp1252(std::string_view(text).substr(0, longestShown)));
}

}  // namespace

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
  std::vector<Row> fresh = readRows();
  resizeTo(fresh.size());
  int first = rowCount();
  int last = -1;
  for (std::size_t i = 0; i < fresh.size(); ++i) {
    if (rows_[i] != fresh[i]) {
      rows_[i] = std::move(fresh[i]);
      last = static_cast<int>(i);
      first = std::min(first, last);
    }
  }
  if (last >= 0) {
    Q_EMIT dataChanged(index(first), index(last));
  }
  Q_EMIT upToDate();
}

std::vector<FavesListModel::Row> FavesListModel::readRows() const {
  std::vector<Row> rows;
  for (int number = 1; number <= list_.count(); ++number) {
    const FavoriteItem& item = list_.at(number);
    rows.push_back({shownText(item.name), shownText(item.hostname), shownText(item.gametype), !item.password.empty()});
  }
  return rows;
}

void FavesListModel::resizeTo(std::size_t count) {
  const int before = rowCount();
  const int after = static_cast<int>(count);
  if (after < before) {
    beginRemoveRows({}, after, before - 1);
    rows_.resize(count);
    endRemoveRows();
  } else if (after > before) {
    beginInsertRows({}, before, after - 1);
    rows_.resize(count);
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
      return row.name;
    case hostnameRole:
      return row.hostname;
    case gametypeRole:
      return row.gametype;
    case lockedRole:
      return row.locked;
    case Qt::AccessibleTextRole:
      return told(row);
    case Qt::ToolTipRole:
      return plainToolTip(told(row));
    default:
      return {};
  }
}

QString FavesListModel::told(const Row& row) {
  QStringList texts{row.name, row.hostname, row.gametype, row.locked ? tr("password is stored") : QString()};
  texts.removeAll(QString());
  return texts.join(QStringLiteral(", "));
}

}  // namespace vantrel

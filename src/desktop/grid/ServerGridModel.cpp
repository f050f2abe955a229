#include "desktop/grid/ServerGridModel.h"

#include <QFont>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/grid/ServerGridIcons.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {

namespace {

struct ColumnWord {
  const char* key;
  const char* word;
};

constexpr std::array<ColumnWord, 3> columnWords = {{
    {"cPing", "Ping"},
    {"cPlayers", "Players"},
    {"cPassword", "Password"},
}};

int alignmentFlags(Alignment alignment) {
  const Qt::AlignmentFlag horizontal = alignment == Alignment::left    ? Qt::AlignLeft
                                       : alignment == Alignment::right ? Qt::AlignRight
                                                                       : Qt::AlignHCenter;
  return static_cast<int>(Qt::Alignment(horizontal | Qt::AlignVCenter).toInt());
}

}  // namespace

QString withoutControls(std::string_view text) {
  QString result = fromCp1252(text);
  result.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return result;
}

ServerGridModel::ServerGridModel(ServerGrid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), order_(grid) {
  sinceBatch_.start();
  for (int row = 1; row <= grid_.rowCount(); ++row) {
    mark(row);
  }
  showBatch();
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &ServerGridModel::release);
  connections_.push_back(grid_.rowAdded.connect([this](int row) { mark(row); }));
  connections_.push_back(grid_.cellChanged.connect([this](int row, int) { mark(row); }));
  connections_.push_back(grid_.rowVisibilityChanged.connect([this](int row) { mark(row); }));
  connections_.push_back(grid_.redraw.changed.connect([this] { release(); }));
  connections_.push_back(grid_.updating.changed.connect([this] { release(); }));
  connections_.push_back(grid_.columnsChanged.connect([this] {
    columnsDirty_ = true;
    schedule();
  }));
  connections_.push_back(grid_.lookChanged.connect([this] {
    lookDirty_ = true;
    schedule();
  }));
  // The order forgets its rows at once, because their numbers may soon be those of other servers; until the batch the
  // table shows as many blank rows.
  connections_.push_back(grid_.cleared.connect([this] {
    order_.clear();
    dirtyRows_.clear();
    dirty_.clear();
    schedule();
  }));
}

int ServerGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownRows_;
}

int ServerGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownColumns_;
}

QVariant ServerGridModel::data(const QModelIndex& index, int role) const {
  const ServerGridOrder::Entry entry = entryAt(index.row());
  if (entry == 0 || !index.isValid()) {
    return {};
  }
  const bool text = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
  if (entry < 0) {
    return text && index.column() == 0 ? QVariant(groupTitle(entry)) : QVariant();
  }
  const GridCell& cell = grid_.cell(entry, index.column() + 1);
  if (text) {
    return withoutControls(cell.text);
  }
  return role == Qt::TextAlignmentRole ? QVariant(alignmentFlags(cell.alignment)) : QVariant();
}

QVariant ServerGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= shownColumns_) {
    return {};
  }
  const GridColumn& column = grid_.column(section + 1);
  switch (role) {
    case Qt::DisplayRole:
      return withoutControls(column.header);
    case Qt::DecorationRole:
      return column.image != 0 ? QVariant(gridIcon(column.image)) : QVariant();
    case Qt::TextAlignmentRole:
      return alignmentFlags(column.alignment);
    case Qt::AccessibleTextRole:
      return columnName(section + 1);
    case Qt::ToolTipRole:
      return column.header.empty() ? QVariant(columnName(section + 1)) : QVariant();
    default:
      return {};
  }
}

bool ServerGridModel::isDirty(ServerGridOrder::Entry entry) const {
  return entry > 0 && static_cast<std::size_t>(entry) <= dirty_.size() && dirty_[static_cast<std::size_t>(entry - 1)];
}

QString ServerGridModel::columnName(int column) const {
  const GridColumn& asked = grid_.column(column);
  const QString header = withoutControls(asked.header).trimmed();
  if (!header.isEmpty()) {
    return header;
  }
  const auto found = std::find_if(columnWords.begin(), columnWords.end(),
                                  [&asked](const ColumnWord& entry) { return asked.key == entry.key; });
  return found == columnWords.end() ? fromCp1252(asked.key) : QString::fromLatin1(found->word);
}

QString ServerGridModel::groupTitle(ServerGridOrder::Entry group) const {
  const ServerGridOrder::Group& shown = order_.group(group);
  const QString text = withoutControls(shown.text).trimmed();
  // The server's text goes in last, so that a "%1" in it stays what it is.
  return QStringLiteral("%2  (%1)").arg(shown.count).arg(text.isEmpty() ? QStringLiteral("(blank)") : text);
}

void ServerGridModel::sortBy(int column, SortDirection direction) {
  order_.sort(column, direction);
  publish();
  Q_EMIT rearranged();
}

void ServerGridModel::groupBy(int column) {
  order_.groupBy(column);
  publish();
  Q_EMIT rearranged();
}

void ServerGridModel::fold(ServerGridOrder::Entry group, Folding folding) {
  order_.fold(group, folding);
  publish();
  Q_EMIT rearranged();
}

void ServerGridModel::mark(int row) {
  const auto place = static_cast<std::size_t>(row - 1);
  if (place >= dirty_.size()) {
    dirty_.resize(place + 1);
  }
  if (!dirty_[place]) {
    dirty_[place] = true;
    dirtyRows_.push_back(row);
  }
  schedule();
}

bool ServerGridModel::somethingWaits() const {
  return !dirtyRows_.empty() || columnsDirty_ || lookDirty_ || shownRows_ != order_.size();
}

void ServerGridModel::schedule() {
  if (grid_.drawing() && !timer_.isActive()) {
    timer_.start(static_cast<int>(std::max<qint64>(0, batchInterval - sinceBatch_.elapsed())));
  }
}

// A sweep releases drawing for no more than an instant, in which no timer gets its turn.
void ServerGridModel::release() {
  if (!grid_.drawing() || !somethingWaits()) {
    return;
  }
  if (sinceBatch_.elapsed() >= batchInterval) {
    showBatch();
  } else {
    schedule();
  }
}

void ServerGridModel::showBatch() {
  timer_.stop();
  sinceBatch_.start();
  Q_EMIT aboutToShow();
  if (std::exchange(columnsDirty_, false)) {
    beginResetModel();
    shownColumns_ = grid_.columnCount();
    endResetModel();
    Q_EMIT columnsShown();
  }
  if (std::exchange(lookDirty_, false)) {
    Q_EMIT lookShown();
  }
  order_.update(dirtyRows_);
  for (const int row : dirtyRows_) {
    dirty_[static_cast<std::size_t>(row - 1)] = false;
  }
  dirtyRows_.clear();
  publish();
  Q_EMIT shown();
}

void ServerGridModel::publish() {
  const int count = order_.size();
  if (count > shownRows_) {
    beginInsertRows({}, shownRows_, count - 1);
    shownRows_ = count;
    endInsertRows();
  } else if (count < shownRows_) {
    beginRemoveRows({}, count, shownRows_ - 1);
    shownRows_ = count;
    endRemoveRows();
  }
  if (count > 0 && shownColumns_ > 0) {
    Q_EMIT dataChanged(index(0, 0), index(count - 1, shownColumns_ - 1));
  }
}

}  // namespace vantrel

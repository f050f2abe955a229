#include "desktop/controls/TeamDelegate.h"

#include <QPainter>
#include <algorithm>

#include "desktop/controls/Inks.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr int stripWidth = 3;
constexpr int barInset = 3;
constexpr int barOpacity = 70;  // of 255: the score is read on it
constexpr QColor noTeam{110, 116, 128};

QColor teamColor(const QString& team) {
  return team == QLatin1String("Red") ? theme::redTeam : team == QLatin1String("Blue") ? theme::blueTeam : noTeam;
}

}  // namespace

TeamDelegate::TeamDelegate(const QAbstractItemModel& rows, int teamColumn, int scoreColumn, QObject* parent)
    : RowDelegate(parent), rows_(rows), teamColumn_(teamColumn), scoreColumn_(scoreColumn) {
  const auto forget = [this] { highest_.reset(); };
  connect(&rows, &QAbstractItemModel::dataChanged, this, forget);
  connect(&rows, &QAbstractItemModel::rowsInserted, this, forget);
  connect(&rows, &QAbstractItemModel::rowsRemoved, this, forget);
}

double TeamDelegate::highestScore() const {
  if (!highest_) {
    highest_ = 0;
    for (int row = 0; row < rows_.rowCount(); ++row) {
      highest_ = std::max(*highest_, rows_.index(row, scoreColumn_).data().toString().toDouble());
    }
  }
  return *highest_;
}

void TeamDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QString team = index.siblingAtColumn(teamColumn_).data().toString();
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  if (index.column() == scoreColumn_ && !selected) {
    paintBar(*painter, option, index);
  }
  QStyleOptionViewItem shown(option);
  if (index.column() == teamColumn_ && !selected && !team.isEmpty()) {
    shown.palette.setColor(QPalette::Text, readable(teamColor(team), option.palette.color(QPalette::Base)));
  }
  if (index.column() == 0) {
    shown.rect.setLeft(shown.rect.left() + stripWidth);
  }
  RowDelegate::paint(painter, shown, index);
  if (index.column() == 0 && !team.isEmpty()) {
    painter->fillRect(QRect(option.rect.topLeft(), QSize(stripWidth, option.rect.height())), teamColor(team));
  }
}

void TeamDelegate::paintBar(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const double highest = highestScore();
  const double score = index.data().toString().toDouble();
  if (!(score > 0 && score <= highest)) {
    return;
  }
  QColor color = teamColor(index.siblingAtColumn(teamColumn_).data().toString());
  color.setAlpha(barOpacity);
  const QRect room = option.rect.adjusted(1, barInset, -barInset, -barInset);
  painter.fillRect(QRectF(room.topLeft(), QSizeF(room.width() * score / highest, room.height())), color);
}

}  // namespace vantrel

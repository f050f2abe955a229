// Draws the rows of a list in which teams score: the team's colour at the row's left edge and in its name, and behind
// each score a bar as long as its share of the highest one.
#pragma once

#include <optional>

#include "desktop/controls/RowDelegate.h"

namespace vantrel {

class TeamDelegate : public RowDelegate {
  Q_OBJECT

 public:
  // `rows` is what the view shows, and must outlive the delegate. Columns number from 0, as in it.
  TeamDelegate(const QAbstractItemModel& rows, int teamColumn, int scoreColumn, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void paintBar(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

  double highestScore() const;

  const QAbstractItemModel& rows_;
  mutable std::optional<double> highest_;  // until the rows change
  int teamColumn_;
  int scoreColumn_;
};

}  // namespace vantrel

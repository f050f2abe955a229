// What the user types to get to a server: letters that follow each other without a pause are the beginning of its name.
#pragma once

#include <QElapsedTimer>
#include <QString>

#include "desktop/grid/ServerGridModel.h"

namespace vantrel {

class TypeAhead {
 public:
  // While the user has not paused, a blank is part of the name.
  bool isUnderWay() const;

  // Takes the next letters and returns the position of the server that they lead to, from `position` on and around the
  // end: one whose name begins with what was typed, else one whose name contains it; -1 when there is none. The first
  // letter leads on from the present row, and so does the same letter again; further letters may stay on it. A
  // `position` of -1 leads on to the first row.
  int type(const QString& letters, const ServerGridModel& model, const ServerGrid& grid, int position);

 private:
  QString typed_;
  QElapsedTimer sinceLetter_;
};

}  // namespace vantrel

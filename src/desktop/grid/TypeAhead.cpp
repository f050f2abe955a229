#include "desktop/grid/TypeAhead.h"

#include <QApplication>
#include <algorithm>
#include <string_view>

#include "core/modSGrid.h"

namespace vantrel {

namespace {

constexpr std::size_t longestName = 256;  // more of a hostile name is not looked at

bool isOneLetter(const QString& text) {
  return text.count(text.front(), Qt::CaseInsensitive) == text.size();
}

QString nameOf(const ServerGrid& grid, ServerGridOrder::Entry server) {
  return withoutControls(std::string_view(grid.cellText(server, cName)).substr(0, longestName)).trimmed();
}

}  // namespace

bool TypeAhead::isUnderWay() const {
  return !typed_.isEmpty() && sinceLetter_.elapsed() < QApplication::keyboardInputInterval();
}

int TypeAhead::type(const QString& letters, const ServerGridModel& model, const ServerGrid& grid, int position) {
  typed_ = isUnderWay() ? typed_ + letters : letters;
  sinceLetter_.start();
  const bool again = isOneLetter(typed_);
  const QString wanted = again ? typed_.left(1) : typed_;
  const int count = model.rowCount();
  const int start = std::max(0, position + (again ? 1 : 0));
  int containing = -1;
  for (int step = 0; step < count; ++step) {
    const int place = (start + step) % count;
    const ServerGridOrder::Entry entry = model.entryAt(place);
    if (entry <= 0) {
      continue;
    }
    const QString name = nameOf(grid, entry);
    if (name.startsWith(wanted, Qt::CaseInsensitive)) {
      return place;
    }
    if (containing < 0 && name.contains(wanted, Qt::CaseInsensitive)) {
      containing = place;
    }
  }
  return containing;
}

}  // namespace vantrel

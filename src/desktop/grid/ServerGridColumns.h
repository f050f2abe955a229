// The columns of the server list as the user wants them: applies their layout to the header, follows what the user does
// there, and opens the menu that shows and hides them.
//
// The layout holds each column's own width. The header stretches whatever column is last on the right, so its widths
// are never read back from it: only what the user drags is taken over.
#pragma once

#include <QObject>
#include <QTimer>
#include <string>

#include "desktop/grid/ColumnLayout.h"
#include "desktop/grid/ServerGridHeader.h"
#include "desktop/grid/ServerGridModel.h"

namespace vantrel {

class ServerGridColumns : public QObject {
  Q_OBJECT

 public:
  static constexpr int changeDelay = 300;  // milliseconds

  // All three must outlive this.
  ServerGridColumns(const ServerGrid& grid, const ServerGridModel& model, ServerGridHeader& header,
                    QObject* parent = nullptr);

  // Before the grid has columns, what was set last.
  std::string text() const;
  // Applied when the columns come, if there are none yet. An empty text gives the columns as the grid has them.
  void setText(const std::string& text);

 Q_SIGNALS:
  // The user has changed something; once for all that is done without a pause of `changeDelay`, or when the program
  // ends before it.
  void changed();

 private:
  enum class Hand { user, program };

  void takeColumns();
  void apply();
  void applyWidths();
  void openMenu(const QPoint& globalPosition);
  void followMove();
  void followWidth(int column, int width);
  bool takeOver(const ColumnLayout& layout);
  void tell();

  const ServerGrid& grid_;
  const ServerGridModel& model_;
  ServerGridHeader& header_;
  ColumnLayout layout_;
  std::string text_;  // what the layout is read from when columns come
  Hand hand_ = Hand::user;
  QTimer pause_;
};

}  // namespace vantrel

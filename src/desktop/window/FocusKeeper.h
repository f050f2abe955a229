// Sees to it that the focus is never lost with a page that goes away: it then goes to the first control of the page
// that is on show. A user who works in the header strip keeps the focus there.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

namespace vantrel {

class FocusKeeper : public QObject {
  Q_OBJECT

 public:
  // `firstOfPage` tells the control that the focus goes to, or nothing. `window` owns the keeper.
  FocusKeeper(QWidget* window, std::function<QWidget*()> firstOfPage);

  // For a window that has just been shown.
  void check();

 private:
  void follow(QWidget* before);
  void giveFocus();

  QWidget* window_;
  std::function<QWidget*()> firstOfPage_;
  bool waits_ = false;
};

// The first control at or behind `start`, in the order of the tab key, that takes the focus and that the user sees.
QWidget* firstFocusable(QWidget* start);

}  // namespace vantrel

// The menu of a right click: at the mouse, or where a key asked for it, at what the keyboard stands on. It waits by the
// program's own loop, so the sockets go on under it and the end of the program closes it.
#pragma once

#include <QObject>

#include "platform/Loop.h"
#include "platform/cPopupMenu.h"

class QPoint;

namespace vantrel {

class QtPopupMenu : public QObject, public cPopupMenu {
  Q_OBJECT

 public:
  // REQUIRES: a QApplication. `loop` must outlive this.
  explicit QtPopupMenu(Loop& loop);

  int Popup(const std::vector<std::string>& items) override;

 protected:
  // Notes whether a key or the mouse was used last.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPoint place() const;

  Loop& loop_;
  bool keyboardLast_ = false;
};

}  // namespace vantrel

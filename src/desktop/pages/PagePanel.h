// A panel of the main window on the screen: shown, hidden and placed as its model says. What stands in the panel goes
// into `content`, which covers the part of it that the user can see: a panel may reach beyond the window's edge or
// under another panel.
#pragma once

#include <QPointer>
#include <QWidget>

#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"

namespace vantrel {

class PagePanel : public QWidget {
  Q_OBJECT

 public:
  // `model` must outlive the panel. `name`: the object name.
  PagePanel(Panel& model, const char* name, QWidget* parent);

  // From now on the content ends where `other`, a panel to the right, begins.
  void endBefore(QWidget* other);
  // From now on the content begins below `other`, a panel at the same place, while that one is shown.
  void beginBelow(QWidget* other);

 protected:
  QWidget* content() { return content_; }
  Bindings& bindings() { return bindings_; }

  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void fitContent();

  QWidget* content_;
  QPointer<QWidget> right_;
  QPointer<QWidget> above_;
  Bindings bindings_;
};

}  // namespace vantrel

// A list of addresses, one a row. The selection is the list box's own, both ways; each row that the user goes to or
// clicks is told.
#pragma once

#include <QListWidget>

#include "platform/Controls.h"

namespace vantrel {

class MirrorListView : public QListWidget {
  Q_OBJECT

 public:
  // `list` must outlive the view.
  MirrorListView(ListBox& list, QWidget* parent);

 Q_SIGNALS:
  void picked();
  void removeAsked();  // the Delete key

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void showList();
  void pick();

  ListBox& list_;
  Connection changed_;
};

}  // namespace vantrel

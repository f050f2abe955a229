// A balloon: a mark, a title, a text and perhaps buttons, near the mouse. It ends by itself after a while or when the
// user sends it away, lies above all other windows, never takes the focus, and shows any text as it is: nothing in it
// is markup, and it never leaves the screen.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "platform/PopupDisplay.h"

class QBoxLayout;

namespace vantrel {

class LvButton;

class BalloonWindow : public QWidget {
  Q_OBJECT

 public:
  BalloonWindow();

  // Shows what is asked for, in place of what it may show already, for its whole time from now on. It lies on none of
  // `taken` if the screen has room.
  void present(const PopupRequest& request, const QRect& screen, const QList<QRect>& taken);

 Q_SIGNALS:
  // It is off the screen. `answer`: the text of the button that was pressed, empty for any other end.
  void ended(const QString& answer);

 protected:
  void hideEvent(QHideEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void takeColors();
  void build();
  void makeCloseButton();
  void takeFont(const PopupRequest& request);
  void showButtons(const PopupRequest& request);
  void showTexts(const PopupRequest& request, const QRect& screen);
  QList<QPoint> wishes(const PopupRequest& request, const QRect& screen) const;
  void announce();

  QLabel title_{this};
  QLabel text_{this};
  LvButton* close_;
  QBoxLayout* buttons_;
  QTimer timer_;
  int icon_ = 0;
  QString answer_;
};

}  // namespace vantrel

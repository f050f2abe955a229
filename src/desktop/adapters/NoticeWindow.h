// A small window that tells the user something and goes by itself after a while, or with a click. It lies above all
// others, never takes the focus, and shows any text as it is: nothing in it is markup, and it never leaves the screen.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

class QGridLayout;

namespace vantrel {

enum class NoticeKind {
  popMsg,  // small, in the lower right corner; stays while the mouse is on it
  balloon  // larger, with a mark, a title and a button to close it, near the mouse
};

class NoticeWindow : public QWidget {
  Q_OBJECT

 public:
  // On show for `milliseconds`, unless it is ended before.
  NoticeWindow(NoticeKind kind, int milliseconds);

  // Shows the texts, in place of those it may show already, for its whole time from now on. It lies on none of `taken`
  // if the screen has room.
  void present(const QString& title, const QString& text, const QRect& screen, const QList<QRect>& taken);

 protected:
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void takeColors();
  void build();
  void addCloseButton(QGridLayout& grid);
  void showTexts(const QString& title, const QString& text, const QRect& screen);
  QList<QPoint> wishes(const QRect& screen) const;
  void startTime();
  void announce();

  NoticeKind kind_;
  QLabel title_{this};
  QLabel text_{this};
  QTimer timer_;
  bool mouseIsOn_ = false;
};

}  // namespace vantrel

// Shows an lvButtons_H: it draws itself and decides what a press is; the toolkit gives it the mouse, the keys and a
// place. Text, icon, font, palette and checkable are set as on any button of the toolkit.
#pragma once

#include <QPushButton>
#include <QTimer>
#include <memory>

#include "appearance/lvButtons_H.h"
#include "desktop/controls/PainterCanvas.h"

namespace vantrel {

class LvButton : public QPushButton, private ButtonHost {
  Q_OBJECT

 public:
  // Option buttons know each other by `container`, which they share; a button without one stands alone. A button that
  // is checkable is an option button in a container, and a check button without one.
  explicit LvButton(QWidget* parent, std::shared_ptr<ButtonContainer> container = nullptr);

  lvButtons_H& control() { return control_; }

  // The colours of the program's settings. Until they are set, those of the palette are taken.
  void setColors(Color back, Color fore, Color gradient);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void checkStateSet() override;
  void nextCheckState() override {}  // What is on is for `control_` and the model to say.

 private:
  bool isUnderPointer() const override { return isOver_; }
  void startTimer(int id, int milliseconds) override;
  void killTimer(int id) override;
  void captureMouse(bool captured) override;
  void refresh() override { update(); }
  void moveBy(int x, int y) override { move(pos() + QPoint(x, y)); }
  void postKey(int keyCode, unsigned message) override;

  void press();
  void follow();
  void followPalette();
  PainterCanvas::Ground captionGround() const;
  void cutCorners(QPainter& painter) const;

  bool isOption_;
  std::shared_ptr<ButtonContainer> container_;
  SystemColors system_;
  QTimer hover_;  // the control stops it when it goes
  lvButtons_H control_;
  Connection clicked_;
  bool isOver_ = false;
  bool isDoubleClick_ = false;
  bool hasColors_ = false;
};

}  // namespace vantrel

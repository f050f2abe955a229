// An Office2003_Button on the screen. Its strip is drawn, not loaded, so that it is sharp at every scale.
#pragma once

#include <QAbstractButton>
#include <QImage>
#include <functional>

#include "appearance/Office2003_Button.h"

namespace vantrel {

// A strip whose frames are drawn when they are needed.
class DrawnStrip : public ButtonStrip {
 public:
  // `paint` draws a frame, 0 to 3, into a square of `side` pixels at 100 %; the last one is the mask, black on white.
  using PaintFrame = std::function<void(QPainter& painter, const QRectF& square, int frame)>;
  DrawnStrip(int side, PaintFrame paint);

  int width() const override { return side_; }
  int height() const override { return side_ * (Office2003_Button::maskFrame + 1); }
  bool isBlack(ButtonPoint pixel) const override;

  void paintFrame(QPainter& painter, int frame) const;

 private:
  int side_;
  PaintFrame paint_;
  QImage mask_;
};

// A cross, on a disc when the mouse is on it. Only the disc counts.
DrawnStrip makeCloseStrip();

class OfficeButtonView : public QAbstractButton, private OfficeButtonHost {
  Q_OBJECT

 public:
  // Both must outlive the view. `strip` may be null.
  OfficeButtonView(Office2003_Button& model, const DrawnStrip* strip, const char* name, QWidget* parent);
  ~OfficeButtonView() override;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  bool isParentActive() const override;
  ButtonPoint pointer() const override;
  ButtonPoint size() const override { return {width(), height()}; }
  void resize(int width, int height) override;

  Office2003_Button& model_;
  const DrawnStrip* strip_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

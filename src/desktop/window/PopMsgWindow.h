// The short message on the screen: a band with the program's name and a cross, the text, and a narrow band beneath it.
// It lies above all other windows, never takes the focus, and shows any text as it is, cut to what it has room for.
#pragma once

#include <QWidget>

#include "appearance/frmPopMsg.h"
#include "desktop/controls/Bindings.h"
#include "desktop/controls/OfficeButtonView.h"

namespace vantrel {

class PopMsgWindow : public QWidget, private LayeredWindow {
  Q_OBJECT

 public:
  // `model` must outlive the window.
  explicit PopMsgWindow(frmPopMsg& model);
  ~PopMsgWindow() override;

  // The text as it is shown, in lines.
  QString shownText() const { return text_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool setConstantAlpha(int level) override;
  void showText();
  void follow();
  void comeOntoScreen();
  QRect screenArea() const;
  PopupMouse mouseOf(const QMouseEvent& event) const;
  void paintBand(QPainter& painter) const;
  void announce();

  frmPopMsg& model_;
  DrawnStrip closeStrip_ = makeCloseStrip();
  OfficeButtonView close_;
  QString text_;
  Bindings bindings_;
};

}  // namespace vantrel

// The view of frmSplash: a picture in the middle of the screen, above all windows, while the program starts. It takes
// no focus, and neither a click nor the window manager closes it: the model alone shows and hides it.
#pragma once

#include <QWidget>

#include "core/frmSplash.h"
#include "desktop/controls/Bindings.h"

namespace vantrel {

class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  // `model` must outlive the window.
  explicit SplashWindow(frmSplash& model);

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void makePicture(frmSplash& model);
  void bindWindow(frmSplash& model);

  Bindings bindings_;
};

}  // namespace vantrel

// A small lamp that shows a Picture's "on" or "off": a filled disc with a tick, or an empty ring with a bar through it,
// so that the two are told apart without their colour. It can be pressed, as a picture can.
#pragma once

#include <QAbstractButton>

#include "desktop/controls/Bindings.h"

namespace vantrel {

class IndicatorPicture : public QAbstractButton {
  Q_OBJECT

 public:
  // `model` must outlive the widget. `name`: the object name.
  IndicatorPicture(Picture& model, const char* name, const QString& accessibleName, QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void showImage();

  Picture& model_;
  Connection changed_;
  Bindings ground_;
};

}  // namespace vantrel

// A box that labels stand in, with an outline, in the colours that the model has. What stands in it without a colour of
// its own can be read on it.
#pragma once

#include <QWidget>

#include "desktop/controls/Bindings.h"

namespace vantrel {

class InfoBox : public QWidget {
  Q_OBJECT

 public:
  // `model` must outlive the box. `number`: its own among the boxes of the window.
  InfoBox(Shape& model, int number, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Shape& model_;
  Bindings bindings_;
};

}  // namespace vantrel

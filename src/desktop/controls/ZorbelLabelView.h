// A ZorbelLabel on the screen: a band with the caption, a line beneath it and a box below, in a frame.
#pragma once

#include <QWidget>
#include <vector>

#include "appearance/ZorbelLabel.h"

namespace vantrel {

class ZorbelLabelView : public QWidget {
  Q_OBJECT

 public:
  // `model` must outlive the view and follows its size.
  ZorbelLabelView(ZorbelLabel& model, const char* name, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  ZorbelLabel& model_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// A chart of all colours: the hues across, from light above to dark below, and a strip of greys along its lower edge.
// A mouse button on it, also while the mouse moves, picks the colour under the pointer; the arrow keys do so step by
// step.
#pragma once

#include <QImage>
#include <QWidget>

#include "platform/Controls.h"

namespace vantrel {

class ColorChart : public QWidget {
  Q_OBJECT

 public:
  explicit ColorChart(QWidget* parent);

  // Of the place of the widget, in its own pixels at 100 %; the nearest one of the chart for a place outside.
  Color colorAt(const QPoint& place) const;

  QSize sizeHint() const override { return {300, 150}; }

 Q_SIGNALS:
  void picked(Color color);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QColor inkAt(double x, double y) const;
  void pick(const QPoint& place);

  QPoint place_;  // picked last
  QImage drawn_;
};

}  // namespace vantrel

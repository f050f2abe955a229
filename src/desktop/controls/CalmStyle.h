// How buttons, boxes, lists and their headers are drawn: flat, with thin edges, and with a ring around what has the
// focus. All colours come from the widget's palette, so that a control can be given colours of its own.
#pragma once

#include <QProxyStyle>

namespace vantrel {

class CalmStyle : public QProxyStyle {
  Q_OBJECT

 public:
  // A button with the property "segment", which is "left" or "right", is one half of a pair.
  CalmStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

// `amount` of `over` mixed into `under`: 0 is all `under`, 1 all `over`.
QColor mixed(const QColor& under, const QColor& over, qreal amount);

}  // namespace vantrel

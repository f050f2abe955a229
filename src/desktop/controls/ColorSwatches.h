// Small fields of colour in columns, one to be taken by a press. They are one stop of the tab key; the arrow keys lead
// from each to the ones beside it.
#pragma once

#include <QAbstractButton>
#include <vector>

#include "core/frmColors.h"

namespace vantrel {

class ColorSwatches : public QWidget {
  Q_OBJECT

 public:
  ColorSwatches(const std::array<Color, frmColors::swatches>& colors, QWidget* parent);

 Q_SIGNALS:
  void pressed(int number);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<QAbstractButton*> fields_;  // column by column
};

}  // namespace vantrel

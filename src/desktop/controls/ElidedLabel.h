// A label of one line for a text from a stranger: what does not fit ends in an ellipsis and is read in the tool tip.
#pragma once

#include <QLabel>

namespace vantrel {

class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // What of the text fits.
  QString shownText() const;
};

}  // namespace vantrel

// A card: what belongs together on a page, on a ground a little lighter than the page's own, whatever colour that is.
#pragma once

#include <QWidget>

namespace vantrel {

class PageCard : public QWidget {
  Q_OBJECT

 public:
  explicit PageCard(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantrel

// A button of the header strip that leads to a page. The one whose page is on show is marked.
#pragma once

#include "desktop/controls/LvButton.h"

namespace vantrel {

enum class PageMark { none, onShow };

class PageTab : public LvButton {
  Q_OBJECT

 public:
  explicit PageTab(QWidget* parent);

  PageMark mark() const { return mark_; }
  void setMark(PageMark mark);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PageMark mark_ = PageMark::none;
};

}  // namespace vantrel

#include "desktop/window/PageTab.h"

#include <QPainter>

#include "desktop/controls/CalmStyle.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr int margin = 10;     // on either side of the caption
constexpr int flatStyle = 4;   // an edge only under the pointer
constexpr int markHeight = 3;  // of the line under the page on show
constexpr int iconSide = 16;   // of a tab that has a picture

}  // namespace

PageTab::PageTab(QWidget* parent) : LvButton(parent) {
  control().setButtonStyle(flatStyle);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
  setIconSize({iconSide, iconSide});
}

void PageTab::setMark(PageMark mark) {
  mark_ = mark;
  setAccessibleDescription(mark == PageMark::onShow ? tr("The page on show") : QString());
  update();
}

QSize PageTab::sizeHint() const {
  const int content = icon().isNull() ? fontMetrics().size(Qt::TextShowMnemonic, text()).width() : iconSide;
  return {content + 2 * margin, fontMetrics().height() + 20};
}

void PageTab::paintEvent(QPaintEvent* event) {
  LvButton::paintEvent(event);
  if (mark_ == PageMark::onShow) {
    QPainter(this).fillRect(0, height() - markHeight, width(), markHeight, theme::accent);
  }
}

}  // namespace vantrel

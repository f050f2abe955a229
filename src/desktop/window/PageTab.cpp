#include "desktop/window/PageTab.h"

#include <QStyleOption>
#include <QStylePainter>

#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr int margin = 10;     // on either side of the caption
constexpr int markHeight = 3;  // of the line under the page on show
constexpr int iconSide = 16;   // of a tab that has a picture

}  // namespace

PageTab::PageTab(QWidget* parent) : QPushButton(parent) {
  setAttribute(Qt::WA_Hover);
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

void PageTab::paintEvent(QPaintEvent* /*event*/) {
  QStyleOptionButton option;
  initStyleOption(&option);
  const bool onShow = mark_ == PageMark::onShow;
  QStylePainter painter(this);
  if (onShow) {
    painter.fillRect(rect(), theme::window);
    painter.fillRect(0, height() - markHeight, width(), markHeight, theme::accent);
  } else if (underMouse() || isDown()) {
    painter.fillRect(rect(), isDown() ? theme::window : theme::button);
  }
  option.palette.setColor(QPalette::ButtonText, onShow || underMouse() ? theme::text : theme::dimText);
  painter.drawControl(QStyle::CE_PushButtonLabel, option);
  if (hasFocus()) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::focus);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 3.5, -2.5, -5.5), 3, 3);
  }
}

}  // namespace vantrel

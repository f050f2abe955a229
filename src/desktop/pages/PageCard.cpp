#include "desktop/pages/PageCard.h"

#include <QPainter>

#include "desktop/controls/CalmStyle.h"

namespace vantrel {
namespace {

constexpr qreal corner = 4;      // radius, in pixels at 100 %
constexpr qreal lighter = 0.04;  // share of the text's colour in the card's

}  // namespace

PageCard::PageCard(QWidget* parent) : QWidget(parent) {}

void PageCard::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), lighter));
  painter.drawRoundedRect(rect(), corner, corner);
}

}  // namespace vantrel

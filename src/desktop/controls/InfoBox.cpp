#include "desktop/controls/InfoBox.h"

#include <QPainter>

#include "desktop/controls/Inks.h"

namespace vantrel {
namespace {

constexpr qreal corner = 3.5;  // radius, in pixels at 100 %

}  // namespace

InfoBox::InfoBox(Shape& model, int number, QWidget* parent) : QWidget(parent), model_(model) {
  setObjectName(QStringLiteral("shpInfo%1").arg(number));
  bindings_.bindGround(*this, model.backColor);
  bindings_.keep(model.borderColor.changed.connect([this] { update(); }));
}

void InfoBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(screenColor(model_.borderColor.get()));
  painter.setBrush(palette().brush(QPalette::Window));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

}  // namespace vantrel

#include "desktop/controls/IndicatorPicture.h"

#include <QPainter>

#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int side = 18;       // of the widget, in pixels at 100 %
constexpr qreal radius = 5.5;  // of the lamp

void paintOn(QPainter& painter, QPointF centre) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::lampOn);
  painter.drawEllipse(centre, radius + 0.5, radius + 0.5);
  painter.setPen(QPen(theme::window, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF tick[] = {centre + QPointF(-2.8, 0.2), centre + QPointF(-0.8, 2.3), centre + QPointF(2.9, -2.2)};
  painter.drawPolyline(tick, 3);
}

void paintOff(QPainter& painter, QPointF centre) {
  painter.setPen(QPen(theme::dimText, 1.4, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(centre, radius, radius);
  painter.drawLine(centre + QPointF(-2.4, 0), centre + QPointF(2.4, 0));
}

}  // namespace

IndicatorPicture::IndicatorPicture(Picture& model, const char* name, const QString& accessibleName, QWidget* parent)
    : QAbstractButton(parent), model_(model), changed_(model.image.changed.connect([this] { showImage(); })) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::clicked, this, [this] { model_.clicked.fire(); });
  showImage();
}

QSize IndicatorPicture::sizeHint() const {
  return {side, side};
}

void IndicatorPicture::showImage() {
  setAccessibleDescription(fromCp1252(model_.image.get()));
  update();
}

void IndicatorPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre = QRectF(rect()).center();
  if (model_.image.get() == "on") {
    paintOn(painter, centre);
  } else {
    paintOff(painter, centre);
  }
  if (hasFocus()) {
    painter.setPen(QPen(theme::focus, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  }
}

}  // namespace vantrel

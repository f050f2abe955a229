#include "desktop/controls/IndicatorPicture.h"

#include <QPainter>

#include "desktop/controls/Inks.h"
#include "desktop/controls/Theme.h"
#include "desktop/pictures/SvgPicture.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int side = 18;  // of the widget, in pixels at 100 %

}  // namespace

IndicatorPicture::IndicatorPicture(Picture& model, const char* name, const QString& accessibleName, QWidget* parent)
    : QAbstractButton(parent), model_(model), changed_(model.image.changed.connect([this] { showImage(); })) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::clicked, this, [this] { model_.clicked.fire(); });
  ground_.bindGround(*this, model.backColor);
  setBackgroundRole(QPalette::Window);
  setAutoFillBackground(true);
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
  paintPicture(painter, model_.image.get() == "on" ? QStringLiteral("on") : QStringLiteral("off"), rect(),
               readable(theme::dimText, palette().color(QPalette::Window)));
  painter.setRenderHint(QPainter::Antialiasing);
  if (hasFocus()) {
    painter.setPen(QPen(readable(theme::focus, palette().color(QPalette::Window)), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  }
}

}  // namespace vantrel

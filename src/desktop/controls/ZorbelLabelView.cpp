#include "desktop/controls/ZorbelLabelView.h"

#include <QPainter>

#include "desktop/controls/Inks.h"
#include "desktop/controls/PlainText.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int bandHeight = 18;
constexpr int boxTop = 20;
constexpr int captionLeft = 4;

constexpr qreal captionSize = 8.25;  // points

}  // namespace

ZorbelLabelView::ZorbelLabelView(ZorbelLabel& model, const char* name, QWidget* parent)
    : QWidget(parent), model_(model) {
  setObjectName(name);
  setMinimumHeight(bandHeight + 2);
  for (Signal<>* const changed :
       {&model.lblmain.caption.changed, &model.lblmain.foreColor.changed, &model.BackColor.changed, &model.resized}) {
    connections_.push_back(changed->connect([this] {
      setAccessibleName(fromCp1252(model_.Caption()));
      update();
    }));
  }
  setAccessibleName(fromCp1252(model.Caption()));
}

void ZorbelLabelView::resizeEvent(QResizeEvent* /*event*/) {
  model_.resize(static_cast<float>(width()) * twipsPerPixel, static_cast<float>(height()) * twipsPerPixel);
}

void ZorbelLabelView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), screenColor(model_.BackColor.get()));
  painter.setPen(palette().color(QPalette::Mid));
  const auto& shapes = model_.Shpmain;
  const QRectF band(1, 1, shapes[0].Width, bandHeight);
  painter.drawRect(band.adjusted(0.5, 0.5, -0.5, -0.5));
  painter.drawLine(QPointF(1, boxTop), QPointF(1 + shapes[2].Width, boxTop));
  if (shapes[1].Height > 1) {
    painter.drawRect(QRectF(2, boxTop, shapes[1].Width, shapes[1].Height).adjusted(0.5, 0.5, -0.5, -0.5));
  }
  QFont bold(QStringLiteral("Arial"));
  bold.setPointSizeF(captionSize);
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(screenColor(model_.ForeColor()));
  const QRectF room(captionLeft, 1, model_.lblmainWidth - captionLeft, bandHeight);
  const QString caption = QFontMetrics(bold).elidedText(oneLine(fromCp1252(model_.Caption())), Qt::ElideRight,
                                                        static_cast<int>(room.width()));
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, caption);
}

}  // namespace vantrel

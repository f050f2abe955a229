#include "desktop/pages/ProgressLine.h"

#include <QPainter>
#include <algorithm>

#include "desktop/controls/CalmStyle.h"
#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr qreal lighter = 0.04;      // share of the text's colour in the line's ground
constexpr qreal edge = 0.2;          // and in its upper edge
constexpr int refreshInterval = 80;  // milliseconds

}  // namespace

ProgressLine::ProgressLine(SweepProgress& progress, QWidget* parent)
    : QWidget(parent), progress_(progress), message_(new ElidedLabel(this)) {
  setObjectName("progressLine");
  message_->setObjectName("progressText");
  message_->setAccessibleName(tr("Progress of the sweep"));
  refresh_.setSingleShot(true);
  refresh_.setInterval(refreshInterval);
  connect(&refresh_, &QTimer::timeout, this, [this] {
    message_->setText(text());
    update();
  });
  for (Field<int>* const number : {&progress.listed, &progress.asked, &progress.answered}) {
    connections_.push_back(number->changed.connect([this] { refreshSoon(); }));
  }
  connections_.push_back(progress.walking.changed.connect([this] { refreshSoon(); }));
}

void ProgressLine::refreshSoon() {
  if (!refresh_.isActive()) {
    refresh_.start();
  }
}

QString ProgressLine::text() const {
  if (progress_.listed.get() == 0) {
    return {};
  }
  const QString asked = progress_.walking.get()
                            ? tr("%1/%2 asked").arg(progress_.asked.get()).arg(progress_.listed.get())
                            : tr("%1 asked").arg(progress_.asked.get());
  return asked + QStringLiteral(" \u00B7 ") + tr("%1 answered").arg(progress_.answered.get());
}

void ProgressLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window);
  const QColor ink = palette().color(QPalette::WindowText);
  painter.fillRect(rect(), mixed(ground, ink, lighter));
  painter.fillRect(QRectF(0, 0, width(), 1), mixed(ground, ink, edge));
  if (progress_.walking.get()) {
    const int listed = std::max(1, progress_.listed.get());
    const double share = std::min(1.0, static_cast<double>(progress_.asked.get()) / listed);
    painter.fillRect(QRectF(0, 0, width(), barHeight), theme::track);
    painter.fillRect(QRectF(0, 0, width() * share, barHeight), theme::accent);
  }
}

}  // namespace vantrel

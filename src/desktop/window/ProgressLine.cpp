#include "desktop/window/ProgressLine.h"

#include <QLocale>
#include <QPainter>
#include <algorithm>

#include "desktop/window/Theme.h"

namespace vantrel {
namespace {

constexpr int textInset = 12;
constexpr int refreshInterval = 80;  // milliseconds

}  // namespace

ProgressLine::ProgressLine(SweepProgress& progress, QWidget* parent) : QWidget(parent), progress_(progress) {
  setObjectName("progressLine");
  setAccessibleName(tr("Progress of the sweep"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  refresh_.setSingleShot(true);
  refresh_.setInterval(refreshInterval);
  connect(&refresh_, &QTimer::timeout, this, [this] {
    setAccessibleDescription(text());
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
  const QLocale locale;
  if (progress_.listed.get() == 0) {
    return {};
  }
  const QString asked =
      progress_.walking.get()
          ? tr("%1 of %2 asked").arg(locale.toString(progress_.asked.get()), locale.toString(progress_.listed.get()))
          : tr("%1 asked").arg(locale.toString(progress_.asked.get()));
  return asked + QStringLiteral("  \u00B7  ") + tr("%1 answered").arg(locale.toString(progress_.answered.get()));
}

QSize ProgressLine::sizeHint() const {
  return {160, fontMetrics().height() + barHeight + 10};
}

void ProgressLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), theme::panel);
  painter.fillRect(QRectF(0, 0, width(), 1), theme::edge);
  if (progress_.walking.get()) {
    const int listed = std::max(1, progress_.listed.get());
    const double share = std::min(1.0, static_cast<double>(progress_.asked.get()) / listed);
    painter.fillRect(QRectF(0, 0, width(), barHeight), theme::track);
    painter.fillRect(QRectF(0, 0, width() * share, barHeight), theme::accent);
  }
  painter.setPen(theme::dimText);
  painter.drawText(rect().adjusted(textInset, barHeight, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text());
}

}  // namespace vantrel

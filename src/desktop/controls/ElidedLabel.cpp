#include "desktop/controls/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "desktop/controls/PlainText.h"

namespace vantrel {
namespace {

constexpr qsizetype longestShown = 1000;  // characters; more never fit

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(oneLine(text().left(longestShown))), fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth(), fontMetrics().height()};
}

QString ElidedLabel::shownText() const {
  return fontMetrics().elidedText(oneLine(text().left(longestShown)), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && shownText() != oneLine(text())) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plainToolTip(text()), this);
    return true;
  }
  return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment().toInt()), palette(), isEnabled(),
                        shownText(), foregroundRole());
}

}  // namespace vantrel

#include "desktop/grid/GroupingBar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/grid/ServerGridIcons.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {

namespace {

constexpr int margin = 8;
constexpr int iconSize = 14;
constexpr int closeSize = 14;

}  // namespace

GroupingBar::GroupingBar(const ServerGrid& grid, QWidget* parent) : QWidget(parent), grid_(grid) {
  setObjectName(QStringLiteral("grdServersGroupingBar"));
  setAccessibleName(QStringLiteral("Grouping"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

QSize GroupingBar::sizeHint() const {
  return {120, fontMetrics().height() + 14};
}

void GroupingBar::showChip(const QString& name, const QIcon& icon) {
  chip_ = {name, icon};
  press_ = Press::none;
  dragging_ = false;
  unsetCursor();
  setFocusPolicy(name.isEmpty() ? Qt::NoFocus : Qt::TabFocus);
  setAccessibleDescription(name.isEmpty() ? fromCp1252(grid_.look().groupingHint)
                                          : QStringLiteral("Grouped by %1").arg(name));
  setToolTip(name.isEmpty() ? QString() : QStringLiteral("Drag back or double-click to end grouping"));
  update();
}

void GroupingBar::showOffer(const QString& name, const QIcon& icon, const QPoint& position) {
  offer_ = {name, icon};
  offerPosition_ = position;
  update();
}

int GroupingBar::chipWidth(const Chip& chip) const {
  const int icon = chip.icon.isNull() ? 0 : iconSize + 4;
  return margin + icon + fontMetrics().horizontalAdvance(chip.name) + margin + closeSize + 4;
}

QRect GroupingBar::chipRect() const {
  if (chip_.name.isEmpty()) {
    return {};
  }
  return {margin, 4, std::min(chipWidth(chip_), width() - 2 * margin), height() - 8};
}

QRect GroupingBar::closeRect() const {
  const QRect chip = chipRect();
  return chip.isNull() ? chip
                       : QRect(chip.right() - closeSize - 3, chip.center().y() - closeSize / 2, closeSize, closeSize);
}

void GroupingBar::paintEvent(QPaintEvent* /*event*/) {
  const GridLook& look = grid_.look();
  QPainter painter(this);
  painter.fillRect(rect(), gridColor(look.groupingBar));
  if (chip_.name.isEmpty()) {
    painter.setPen(gridColor(look.groupText));
    painter.setOpacity(0.75);
    painter.drawText(rect().adjusted(margin, 0, -margin, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(fromCp1252(look.groupingHint), Qt::ElideRight, width() - 2 * margin));
  } else {
    paintChip(painter, chip_, chipRect(), dragging_ ? 0.45 : 1.0);
    paintClose(painter);
  }
  if (!offer_.name.isEmpty()) {
    painter.setOpacity(1);
    painter.setPen(QPen(gridColor(look.selectedText), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
    const QRect ghost(0, 0, chipWidth(offer_), height() - 8);
    paintChip(painter, offer_, ghost.translated(offerPosition_.x() - ghost.width() / 2, 4), 0.85);
  }
}

void GroupingBar::paintChip(QPainter& painter, const Chip& chip, const QRect& rect, qreal opacity) const {
  const QColor ink = gridColor(grid_.look().groupText);
  painter.save();
  painter.setOpacity(opacity);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor border = hasFocus() ? palette().color(QPalette::Highlight) : ink;
  border.setAlpha(hasFocus() ? 255 : 110);
  const qreal line = hasFocus() ? 2 : 1;
  painter.setPen(QPen(border, line));
  painter.setBrush(gridColor(grid_.look().groupingBar).lighter(112));
  painter.drawRoundedRect(QRectF(rect).adjusted(line / 2, line / 2, -line / 2, -line / 2), 4, 4);
  QRect text = rect.adjusted(margin, 0, -closeSize - 4, 0);
  if (!chip.icon.isNull()) {
    chip.icon.paint(&painter, text.left() - 2, rect.center().y() - iconSize / 2 + 1, iconSize, iconSize);
    text.setLeft(text.left() + iconSize + 2);
  }
  painter.setPen(ink);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, chip.name);
  painter.restore();
}

void GroupingBar::paintClose(QPainter& painter) const {
  const QRectF close(closeRect());
  QColor ink = gridColor(grid_.look().groupText);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (overClose_) {
    ink.setAlpha(40);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(close);
    ink.setAlpha(255);
  }
  const QRectF cross = close.adjusted(4.2, 4.2, -4.2, -4.2);
  painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(cross.topLeft(), cross.bottomRight());
  painter.drawLine(cross.topRight(), cross.bottomLeft());
  painter.restore();
}

void GroupingBar::mousePressEvent(QMouseEvent* event) {
  pressPosition_ = event->position().toPoint();
  dragging_ = false;
  const bool onChip = event->button() == Qt::LeftButton && chipRect().contains(pressPosition_);
  press_ = !onChip ? Press::none : closeRect().contains(pressPosition_) ? Press::close : Press::chip;
}

void GroupingBar::mouseMoveEvent(QMouseEvent* event) {
  const QPoint position = event->position().toPoint();
  if (std::exchange(overClose_, closeRect().contains(position)) != overClose_) {
    update();
  }
  const int distance = (position - pressPosition_).manhattanLength();
  if (press_ == Press::chip && !dragging_ && distance >= QApplication::startDragDistance()) {
    dragging_ = true;
    setCursor(Qt::ClosedHandCursor);
    update();
  }
}

void GroupingBar::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint position = event->position().toPoint();
  const Press press = std::exchange(press_, Press::none);
  const bool dragged = std::exchange(dragging_, false);
  unsetCursor();
  update();
  if (press == Press::close && closeRect().contains(position)) {
    Q_EMIT closed();
  } else if (press == Press::chip && dragged && !rect().contains(position)) {
    Q_EMIT chipDropped(event->globalPosition().toPoint());
  }
}

void GroupingBar::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && chipRect().contains(event->position().toPoint())) {
    Q_EMIT closed();
  }
}

void GroupingBar::keyPressEvent(QKeyEvent* event) {
  if (!chip_.name.isEmpty() && (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)) {
    Q_EMIT closed();
    return;
  }
  QWidget::keyPressEvent(event);
}

void GroupingBar::leaveEvent(QEvent* event) {
  overClose_ = false;
  update();
  QWidget::leaveEvent(event);
}

}  // namespace vantrel

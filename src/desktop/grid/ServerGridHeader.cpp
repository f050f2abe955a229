#include "desktop/grid/ServerGridHeader.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QStyle>
#include <utility>

namespace vantrel {

namespace {

// Puts the headers' texts above those of the cells.
class HeaderStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return metric == PM_HeaderMargin ? 4 : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

constexpr int leaveDistance = 4;  // above the header; a hand that wavers along the edge does not leave

}  // namespace

ServerGridHeader::ServerGridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionsClickable(true);
  setSectionsMovable(true);
  setHighlightSections(false);
  setSortIndicator(-1, Qt::AscendingOrder);
  setStretchLastSection(true);
  setMinimumSectionSize(24);
  setAutoScroll(false);
  auto* const headerStyle = new HeaderStyle;
  headerStyle->setParent(this);
  setStyle(headerStyle);
  connect(this, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    if (onHandle_) {
      Q_EMIT widthDragged(column, width);
    }
  });
}

QSize ServerGridHeader::sizeHint() const {
  const auto metric = [this](QStyle::PixelMetric wanted) { return style()->pixelMetric(wanted, nullptr, this); };
  const int withImage = metric(QStyle::PM_SmallIconSize) + 2 * metric(QStyle::PM_HeaderMargin);
  return QHeaderView::sizeHint().expandedTo({0, withImage});
}

bool ServerGridHeader::isResizeHandle(int x) const {
  const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
  const int column = logicalIndexAt(x);
  if (column < 0) {
    return true;
  }
  const int left = sectionViewportPosition(column);
  return (x < left + grip && sectionPosition(column) > 0) || x > left + sectionSize(column) - grip;
}

bool ServerGridHeader::takesHandle(const QMouseEvent& event) const {
  return event.button() == Qt::LeftButton && isResizeHandle(event.position().toPoint().x());
}

void ServerGridHeader::mousePressEvent(QMouseEvent* event) {
  press_ = event->position().toPoint();
  outside_ = false;
  onHandle_ = takesHandle(*event);
  dragged_ = event->button() == Qt::LeftButton && !isResizeHandle(press_.x()) ? logicalIndexAt(press_) : -1;
  QHeaderView::mousePressEvent(event);
}

// The base class follows the mouse along the header only. While the mouse is outside it is told that the mouse is where
// it was pressed but far above: there it neither moves a column nor takes the release for a click.
void ServerGridHeader::sendAtPress(QMouseEvent* event) {
  QMouseEvent above(event->type(), QPointF(press_.x(), -1000), event->globalPosition(), event->button(),
                    event->buttons(), event->modifiers());
  if (event->type() == QEvent::MouseMove) {
    QHeaderView::mouseMoveEvent(&above);
  } else {
    QHeaderView::mouseReleaseEvent(&above);
  }
}

void ServerGridHeader::mouseMoveEvent(QMouseEvent* event) {
  const bool out = dragged_ >= 0 && event->buttons().testFlag(Qt::LeftButton) &&
                   event->position().y() < (outside_ ? 0 : -leaveDistance);
  if (out) {
    outside_ = true;
    sendAtPress(event);
    Q_EMIT draggedOut(dragged_, event->globalPosition().toPoint());
    return;
  }
  if (std::exchange(outside_, false)) {
    Q_EMIT dragReturned();
  }
  QHeaderView::mouseMoveEvent(event);
}

void ServerGridHeader::mouseReleaseEvent(QMouseEvent* event) {
  const int column = std::exchange(dragged_, -1);
  onHandle_ = false;
  if (!std::exchange(outside_, false)) {
    QHeaderView::mouseReleaseEvent(event);
    return;
  }
  sendAtPress(event);
  Q_EMIT dragReturned();
  if (event->button() == Qt::LeftButton) {
    Q_EMIT dropped(column, event->globalPosition().toPoint());
  }
}

// On an edge it fits the column to its texts.
void ServerGridHeader::mouseDoubleClickEvent(QMouseEvent* event) {
  onHandle_ = takesHandle(*event);
  QHeaderView::mouseDoubleClickEvent(event);
  onHandle_ = false;
}

void ServerGridHeader::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  Q_EMIT menuWanted(event->globalPos());
}

void ServerGridHeader::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

}  // namespace vantrel

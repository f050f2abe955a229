#include "desktop/adapters/NoticeWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <algorithm>

#include "desktop/adapters/NoticeLayout.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int stripe = 3;  // of colour along the left edge
constexpr int markSide = 24;
constexpr int padding = 12;
constexpr int smallestWidth = 200;
constexpr int smallestRoom = 40;
constexpr int closeSide = 20;

constexpr int mostLines = 12;
constexpr int mostTitleLines = 2;
constexpr int edgeLighter = 170;  // percent, so that it stands out on the program's other windows

constexpr Qt::WindowFlags noticeFlags =
    Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

int widestText(NoticeKind kind) {
  return kind == NoticeKind::balloon ? 360 : 280;
}

// An "i" in a disc.
void paintInformationMark(QPainter& painter, const QRectF& disc, const QPalette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.highlight());
  painter.drawEllipse(disc);
  painter.setBrush(palette.highlightedText());
  const QPointF centre = disc.center();
  painter.drawEllipse(centre - QPointF(0, disc.height() * 0.23), 1.7, 1.7);
  painter.drawRoundedRect(QRectF(centre.x() - 1.4, centre.y() - 2, 2.8, disc.height() * 0.36), 1, 1);
}

}  // namespace

NoticeWindow::NoticeWindow(NoticeKind kind, int milliseconds) : QWidget(nullptr, noticeFlags), kind_(kind) {
  setObjectName(kind == NoticeKind::balloon ? "balloon" : "popMsg");
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  timer_.setSingleShot(true);
  timer_.setInterval(milliseconds);
  connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
  takeColors();
  build();
}

// Those of a tool tip, which lies above everything in the same way.
void NoticeWindow::takeColors() {
  QPalette palette = QApplication::palette();
  palette.setBrush(QPalette::Window, palette.toolTipBase());
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText}) {
    palette.setBrush(role, palette.toolTipText());
  }
  setPalette(palette);
}

void NoticeWindow::build() {
  auto* const grid = new QGridLayout(this);
  const int left = stripe + padding + (kind_ == NoticeKind::balloon ? markSide + padding : 0);
  grid->setContentsMargins(left, padding, padding, padding);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(1, 1);
  QFont bold = title_.font();
  bold.setBold(true);
  title_.setFont(bold);
  title_.setObjectName("title");
  text_.setObjectName("text");
  for (QLabel* const label : {&title_, &text_}) {
    label->setTextFormat(Qt::PlainText);
  }
  text_.setAlignment(Qt::AlignTop | Qt::AlignLeft);
  title_.setVisible(kind_ == NoticeKind::balloon);
  grid->addWidget(&title_, 0, 0);
  grid->addWidget(&text_, 1, 0, 1, 2);
  if (kind_ == NoticeKind::balloon) {
    addCloseButton(*grid);
  }
}

void NoticeWindow::addCloseButton(QGridLayout& grid) {
  auto* const close = new QToolButton(this);
  close->setObjectName("close");
  close->setText(QString(QChar(0x00D7)));
  close->setAccessibleName(tr("Close"));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  close->setFixedSize(closeSide, closeSide);
  QFont large = close->font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  close->setFont(large);
  connect(close, &QToolButton::clicked, this, &QWidget::hide);
  grid.addWidget(close, 0, 1, Qt::AlignTop | Qt::AlignRight);
}

void NoticeWindow::present(const QString& title, const QString& text, const QRect& screen, const QList<QRect>& taken) {
  showTexts(title, text, screen);
  setFixedSize(sizeHint().expandedTo({smallestWidth, 0}));
  move(freePlace(size(), wishes(screen), screen, taken));
  show();
  raise();
  startTime();
  announce();
}

// The text takes no more than half of the screen's height, the title some lines more.
void NoticeWindow::showTexts(const QString& title, const QString& text, const QRect& screen) {
  const QMargins margins = layout()->contentsMargins();
  const int free = screen.width() - 2 * noticeMargin - margins.left() - margins.right();
  const int width = std::max(smallestRoom, std::min(free, widestText(kind_)));
  const int lines = std::clamp(screen.height() / 2 / QFontMetrics(text_.font()).lineSpacing(), 1, mostLines);
  title_.setText(fittedText(title, title_.font(), {std::max(smallestRoom, width - 8 - closeSide), mostTitleLines}));
  text_.setText(fittedText(text, text_.font(), {width, lines}));
  setAccessibleName(title.isEmpty() ? text_.text() : title_.text());
  setAccessibleDescription(title.isEmpty() ? QString() : text_.text());
}

QList<QPoint> NoticeWindow::wishes(const QRect& screen) const {
  if (kind_ == NoticeKind::popMsg) {
    return {QPoint(screen.right() + 1 - noticeMargin - width(), screen.bottom() + 1 - noticeMargin - height())};
  }
  const QPoint mouse = QCursor::pos();
  const int right = mouse.x() + noticeMargin;
  const int left = mouse.x() - noticeMargin - width();
  const int above = mouse.y() - noticeMargin - height();
  const int below = mouse.y() + noticeMargin;
  return {{right, below}, {left, below}, {right, above}, {left, above}};
}

void NoticeWindow::announce() {
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

// A message under the mouse may be being read: its time begins when the mouse goes.
void NoticeWindow::startTime() {
  if (kind_ == NoticeKind::popMsg && mouseIsOn_) {
    timer_.stop();
  } else {
    timer_.start();
  }
}

void NoticeWindow::enterEvent(QEnterEvent* /*event*/) {
  mouseIsOn_ = true;
  if (kind_ == NoticeKind::popMsg) {
    startTime();
  }
}

void NoticeWindow::leaveEvent(QEvent* /*event*/) {
  mouseIsOn_ = false;
  if (kind_ == NoticeKind::popMsg && isVisible()) {
    startTime();
  }
}

void NoticeWindow::hideEvent(QHideEvent* /*event*/) {
  mouseIsOn_ = false;
  timer_.stop();
}

void NoticeWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) {
    hide();
  }
}

void NoticeWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.fillRect(QRect(0, 0, stripe, height()), palette().highlight());
  QPen edge(palette().color(QPalette::Mid).lighter(edgeLighter), 1);
  edge.setJoinStyle(Qt::MiterJoin);
  painter.setPen(edge);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  if (kind_ == NoticeKind::balloon) {
    paintInformationMark(painter, QRectF(stripe + padding, padding, markSide, markSide), palette());
  }
}

}  // namespace vantrel

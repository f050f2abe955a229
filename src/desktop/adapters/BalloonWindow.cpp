#include "desktop/adapters/BalloonWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QBoxLayout>
#include <QCursor>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>

#include "desktop/controls/LvButton.h"
#include "desktop/pictures/SvgPicture.h"
#include "desktop/text/Cp1252.h"
#include "desktop/text/NoticeLayout.h"

namespace vantrel {
namespace {

constexpr int flatStyle = 4;  // of the button that closes it: an edge only under the pointer

// In pixels at 100 %.
constexpr int stripe = 3;  // of colour along the left edge
constexpr int markSide = 24;
constexpr int padding = 12;
constexpr int smallestWidth = 200;
constexpr int widestText = 360;
constexpr int smallestRoom = 40;
constexpr int closeSide = 20;
constexpr int buttonGap = 6;

constexpr int mostLines = 12;
constexpr int mostTitleLines = 2;
constexpr int edgeLighter = 170;  // percent, so that it stands out on the program's other windows
constexpr qreal usualFontSize = 8;
constexpr double longestTime = 3600;  // seconds

constexpr Qt::WindowFlags balloonFlags =
    Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

enum IconCode : int { noIcon = 0, critical = 16, exclamation = 48 };

constexpr QColor criticalColor{214, 69, 69};
constexpr QColor exclamationColor{240, 180, 60};

QColor colorOf(int icon, const QPalette& palette) {
  return icon == critical ? criticalColor : icon == exclamation ? exclamationColor : palette.color(QPalette::Highlight);
}

// A stroke and a dot: "i" with the dot above, "!" with it below.
void paintSign(QPainter& painter, QPointF centre, qreal side, bool isDotAbove) {
  const qreal up = isDotAbove ? 1 : -1;
  painter.drawEllipse(centre - QPointF(0, up * side * 0.23), 1.7, 1.7);
  const qreal length = side * 0.36;
  const qreal top = isDotAbove ? centre.y() - 2 : centre.y() + 2 - length;
  painter.drawRoundedRect(QRectF(centre.x() - 1.4, top, 2.8, length), 1, 1);
}

// A disc with an "i" or a cross, or a triangle with an exclamation mark.
void paintMark(QPainter& painter, const QRectF& square, int icon, const QPalette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colorOf(icon, palette));
  const QPointF centre = square.center();
  if (icon == exclamation) {
    const QPointF corners[] = {{centre.x(), square.top()}, square.bottomRight(), square.bottomLeft()};
    painter.drawPolygon(corners, 3);
    painter.setBrush(QColor(30, 32, 38));
    paintSign(painter, centre + QPointF(0, 3), square.height() * 0.8, false);
    return;
  }
  painter.drawEllipse(square);
  if (icon == critical) {
    painter.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap));
    const qreal arm = square.width() * 0.19;
    painter.drawLine(centre + QPointF(-arm, -arm), centre + QPointF(arm, arm));
    painter.drawLine(centre + QPointF(-arm, arm), centre + QPointF(arm, -arm));
    return;
  }
  painter.setBrush(palette.highlightedText());
  paintSign(painter, centre, square.height(), true);
}

}  // namespace

BalloonWindow::BalloonWindow() : QWidget(nullptr, balloonFlags), close_(new LvButton(this)), buttons_(new QHBoxLayout) {
  setObjectName("balloon");
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
  takeColors();
  build();
}

// Those of a tool tip, which lies above everything in the same way.
void BalloonWindow::takeColors() {
  QPalette palette = QApplication::palette();
  palette.setBrush(QPalette::Window, palette.toolTipBase());
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText}) {
    palette.setBrush(role, palette.toolTipText());
  }
  setPalette(palette);
}

void BalloonWindow::build() {
  auto* const grid = new QGridLayout(this);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(1, 1);
  title_.setObjectName("title");
  text_.setObjectName("text");
  for (QLabel* const label : {&title_, &text_}) {
    label->setTextFormat(Qt::PlainText);
  }
  text_.setAlignment(Qt::AlignTop | Qt::AlignLeft);
  makeCloseButton();
  buttons_->setSpacing(buttonGap);
  buttons_->addStretch(1);
  grid->addWidget(&title_, 0, 0);
  grid->addWidget(close_, 0, 1, Qt::AlignTop | Qt::AlignRight);
  grid->addWidget(&text_, 1, 0, 1, 2);
  grid->addLayout(buttons_, 2, 0, 1, 2);
}

void BalloonWindow::makeCloseButton() {
  close_->setObjectName("close");
  close_->setIcon(pictureIcon(QStringLiteral("close"), palette().color(QPalette::ButtonText)));
  close_->control().setButtonStyle(flatStyle);
  close_->setAccessibleName(tr("Close"));
  close_->setFocusPolicy(Qt::NoFocus);
  close_->setFixedSize(closeSide, closeSide);
  connect(close_, &QPushButton::clicked, this, &QWidget::hide);
}

void BalloonWindow::present(const PopupRequest& request, const QRect& screen, const QList<QRect>& taken) {
  icon_ = request.icon;
  answer_.clear();
  const int left = stripe + padding + (icon_ == noIcon ? 0 : markSide + padding);
  layout()->setContentsMargins(left, padding, padding, padding);
  close_->setVisible(request.closeButton);
  takeFont(request);
  showButtons(request);
  showTexts(request, screen);
  setFixedSize(sizeHint().expandedTo({smallestWidth, 2 * padding + (icon_ == noIcon ? 0 : markSide)}));
  move(freePlace(size(), wishes(request, screen), screen, taken));
  show();
  raise();
  update();
  timer_.stop();
  if (request.autoCloseSeconds > 0) {
    timer_.start(static_cast<int>(std::lround(std::min(request.autoCloseSeconds, longestTime) * 1000)));
  }
  announce();
}

// The usual font is the program's own, as large as in its other windows; the others are larger by as much as they say.
void BalloonWindow::takeFont(const PopupRequest& request) {
  QFont font = QApplication::font();
  const QString face = fromCp1252(request.fontFace);
  if (!face.isEmpty() && !font.families().contains(face)) {
    font.setFamilies(QStringList{face} + font.families());
  }
  font.setPointSizeF(font.pointSizeF() * std::clamp(request.fontSize, 1.0, 72.0) / usualFontSize);
  text_.setFont(font);
  font.setBold(true);
  title_.setFont(font);
}

void BalloonWindow::showButtons(const PopupRequest& request) {
  for (QPushButton* const old : findChildren<QPushButton*>()) {
    if (old != close_) {
      delete old;
    }
  }
  const bool any = request.first.shown || request.second.shown || request.third.shown;
  buttons_->setContentsMargins(0, any ? buttonGap : 0, 0, 0);
  for (const PopupButton* const wanted : {&request.first, &request.second, &request.third}) {
    if (!wanted->shown) {
      continue;
    }
    const QString text = fromCp1252(wanted->text);
    auto* const button = new LvButton(this);
    button->setText(QString(text).replace('&', QStringLiteral("&&")));
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, [this, text] {
      answer_ = text;
      hide();
    });
    buttons_->addWidget(button);
    button->show();
  }
}

// The text takes no more than half of the screen's height, the title some lines more.
void BalloonWindow::showTexts(const PopupRequest& request, const QRect& screen) {
  const QMargins margins = layout()->contentsMargins();
  const int free = screen.width() - 2 * noticeMargin - margins.left() - margins.right();
  const int width = std::max(smallestRoom, std::min(free, widestText));
  const int lines = std::clamp(screen.height() / 2 / QFontMetrics(text_.font()).lineSpacing(), 1, mostLines);
  title_.setText(fittedText(fromCp1252(request.title), title_.font(),
                            {std::max(smallestRoom, width - 8 - closeSide), mostTitleLines}));
  text_.setText(fittedText(fromCp1252(request.message), text_.font(), {width, lines}));
  setAccessibleName(title_.text());
  setAccessibleDescription(text_.text());
}

QList<QPoint> BalloonWindow::wishes(const PopupRequest& request, const QRect& screen) const {
  if (!request.atMouse) {
    return {screen.topLeft() + QPoint(request.left, request.top)};
  }
  const QPoint mouse = QCursor::pos();
  const int right = mouse.x() + noticeMargin;
  const int left = mouse.x() - noticeMargin - width();
  const int above = mouse.y() - noticeMargin - height();
  const int below = mouse.y() + noticeMargin;
  return {{right, below}, {left, below}, {right, above}, {left, above}};
}

void BalloonWindow::announce() {
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void BalloonWindow::hideEvent(QHideEvent* event) {
  timer_.stop();
  if (!event->spontaneous()) {
    Q_EMIT ended(answer_);
  }
}

void BalloonWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) {
    hide();
  }
}

void BalloonWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.fillRect(QRect(0, 0, stripe, height()), colorOf(icon_, palette()));
  QPen edge(palette().color(QPalette::Mid).lighter(edgeLighter), 1);
  edge.setJoinStyle(Qt::MiterJoin);
  painter.setPen(edge);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  if (icon_ != noIcon) {
    paintMark(painter, QRectF(stripe + padding, padding, markSide, markSide), icon_, palette());
  }
}

}  // namespace vantrel

#include "desktop/controls/ColorSwatches.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

#include "desktop/controls/Theme.h"
#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {
namespace {

constexpr int side = 22;  // of a field, in pixels at 100 %
constexpr int gap = 3;
constexpr int perColumn = 5;

// The second colour is the lightest of the reds that follow the greys.
constexpr int order[perColumn * 2] = {5, 4, 3, 2, 0, 1, 6, 7, 8, 9};

class Swatch : public QAbstractButton {
 public:
  Swatch(Color color, QWidget* parent) : QAbstractButton(parent), color_(gridColor(color)) {
    setFixedSize(side, side);
    setAccessibleName(color_.name().toUpper());
    setToolTip(accessibleName());
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(hasFocus() ? theme::focus : theme::edge);
    painter.setBrush(color_);
    painter.drawRoundedRect(shape, 3, 3);
    if (hasFocus()) {
      painter.setBrush(Qt::NoBrush);
      painter.drawRoundedRect(shape.adjusted(1, 1, -1, -1), 2, 2);
      painter.setPen(theme::window);
      painter.drawRoundedRect(shape.adjusted(2, 2, -2, -2), 2, 2);
    }
  }

 private:
  QColor color_;
};

}  // namespace

ColorSwatches::ColorSwatches(const std::array<Color, frmColors::swatches>& colors, QWidget* parent) : QWidget(parent) {
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(gap);
  for (int place = 0; place < static_cast<int>(colors.size()); ++place) {
    const int number = place < perColumn * 2 ? order[place] : place;
    auto* const field = new Swatch(colors[static_cast<std::size_t>(number)], this);
    field->setObjectName(QStringLiteral("MiniPicker%1").arg(number));
    field->setFocusPolicy(place == 0 ? Qt::StrongFocus : Qt::ClickFocus);
    field->installEventFilter(this);
    connect(field, &QAbstractButton::pressed, this, [this, number] { Q_EMIT pressed(number); });
    grid->addWidget(field, place % perColumn, place / perColumn);
    fields_.push_back(field);
  }
}

bool ColorSwatches::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    return false;
  }
  const auto place = std::find(fields_.begin(), fields_.end(), watched) - fields_.begin();
  int step = 0;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left:
      step = -perColumn;
      break;
    case Qt::Key_Right:
      step = perColumn;
      break;
    case Qt::Key_Up:
      step = place % perColumn > 0 ? -1 : 0;
      break;
    case Qt::Key_Down:
      step = place % perColumn < perColumn - 1 ? 1 : 0;
      break;
    default:
      return false;
  }
  const auto target = place + step;
  if (target >= 0 && target < static_cast<std::ptrdiff_t>(fields_.size())) {
    fields_[static_cast<std::size_t>(target)]->setFocus(Qt::OtherFocusReason);
  }
  return true;
}

}  // namespace vantrel

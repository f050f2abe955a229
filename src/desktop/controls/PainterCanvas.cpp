#include "desktop/controls/PainterCanvas.h"

#include <QFontMetrics>
#include <QPainter>
#include <cstdlib>

#include "desktop/controls/Inks.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int wrapping = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
constexpr int anyHeight = 10000;  // pixels

// As the toolkit marks the letter of a key.
QString marked(const std::string& text, int underlined) {
  QString result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (static_cast<int>(at) == underlined) {
      result += QLatin1Char('&');
    }
    const QString letter = fromCp1252(text.substr(at, 1));
    result += letter == QLatin1String("&") ? QStringLiteral("&&") : letter;
  }
  return result.remove(QLatin1Char('\r'));
}

QRect rectOf(const ButtonBox& box) {
  return {box.left, box.top, box.width, box.height};
}

}  // namespace

ButtonBox FontMeasure::extentOf(const std::string& text, int width) const {
  const QRect extent =
      QFontMetrics(font_).boundingRect(QRect(0, 0, width, anyHeight), wrapping, fromCp1252(text).remove('\r'));
  return {0, 0, extent.width(), extent.height()};
}

void PainterCanvas::fill(const ButtonBox& box, Color color) {
  painter_.fillRect(rectOf(box), screenColor(color));
}

void PainterCanvas::line(int fromX, int fromY, int toX, int toY, Color color) {
  if (fromX == toX || fromY == toY) {
    painter_.fillRect(QRect(QPoint(std::min(fromX, toX), std::min(fromY, toY)),
                            QSize(std::abs(toX - fromX) + 1, std::abs(toY - fromY) + 1)),
                      screenColor(color));
    return;
  }
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(QPen(screenColor(color), 1));
  painter_.drawLine(QPointF(fromX + 0.5, fromY + 0.5), QPointF(toX + 0.5, toY + 0.5));
  painter_.restore();
}

// One line needs no room for wrapping: what is a little wider than its box, as a caption in the shadow of itself, is
// cut by nothing but the button.
void PainterCanvas::text(const ButtonBox& box, const std::string& text, int underlined, Color color) {
  painter_.setPen(ground_ ? readable(screenColor(color), *ground_) : screenColor(color));
  const QString shown = marked(text, underlined);
  const bool fits = QFontMetrics(painter_.font()).size(Qt::TextShowMnemonic, shown).width() <= box.width;
  painter_.drawText(rectOf(box), (fits ? int(Qt::AlignHCenter | Qt::AlignTop) : wrapping) | Qt::TextShowMnemonic,
                    shown);
}

void PainterCanvas::picture(const ButtonBox& box, bool isEnabled) {
  picture_.paint(&painter_, rectOf(box), Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
}

// Dots of the focus colour: told from every edge of a button.
void PainterCanvas::focusRectangle(const ButtonBox& box) {
  const QColor ink = theme::focus;
  for (int x = box.left; x < box.right(); x += 2) {
    painter_.fillRect(x, box.top, 1, 1, ink);
    painter_.fillRect(x, box.bottom() - 1, 1, 1, ink);
  }
  for (int y = box.top; y < box.bottom(); y += 2) {
    painter_.fillRect(box.left, y, 1, 1, ink);
    painter_.fillRect(box.right() - 1, y, 1, 1, ink);
  }
}

}  // namespace vantrel

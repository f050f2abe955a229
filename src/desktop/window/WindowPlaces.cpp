#include "desktop/window/WindowPlaces.h"

#include <QWidget>
#include <algorithm>

namespace vantrel {
namespace {

constexpr int gap = 8;  // between two windows

QPoint ontoScreen(QPoint wanted, QSize size, const QRect& screen) {
  return {std::max(screen.left(), std::min(wanted.x(), screen.right() + 1 - size.width())),
          std::max(screen.top(), std::min(wanted.y(), screen.bottom() + 1 - size.height()))};
}

}  // namespace

QPoint placeAbove(const QRect& above, QSize size, const QRect& screen) {
  return ontoScreen(above.center() - QRect({0, 0}, size).center(), size, screen);
}

QPoint placeBeside(const QRect& beside, QSize size, const QRect& screen, int down) {
  const int right = beside.right() + 1 + gap;
  const int left = beside.left() - gap - size.width();
  const bool fitsRight = right + size.width() <= screen.right() + 1;
  const bool fitsLeft = left >= screen.left();
  return ontoScreen({!fitsRight && fitsLeft ? left : right, beside.top() + down}, size, screen);
}

bool isSeen(const QWidget* window) {
  return window != nullptr && window->isVisible() && !window->isMinimized();
}

}  // namespace vantrel

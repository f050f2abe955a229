// Where a window comes up: pure geometry, in pixels of the virtual desktop.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace vantrel {

// In the middle of another window, or as near to that as the screen allows.
QPoint placeAbove(const QRect& above, QSize size, const QRect& screen);

// Beside another window, `down` below its upper edge: on its right where there is room, else on its left, else over its
// right edge, and always on the screen.
QPoint placeBeside(const QRect& beside, QSize size, const QRect& screen, int down);

// Whether there is such a window for another to come up at.
bool isSeen(const QWidget* window);

}  // namespace vantrel

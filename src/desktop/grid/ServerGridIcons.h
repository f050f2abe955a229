// The pictures of the server list, drawn from shapes so that they are crisp at every size and device pixel ratio.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QRectF>

#include "platform/Controls.h"

class QPainter;

namespace vantrel {

// 0x00BBGGRR to the toolkit's colour.
QColor gridColor(Color color);

// The numbers of the grid's image list: 1 lock (password), 2 firewall, 3 players, 4 ping. Any other number is no image.
// Draws the image into the largest square in the middle of `rect`.
void paintGridImage(QPainter& painter, int number, const QRectF& rect);

// A null icon when there is no image of that number.
QIcon gridIcon(int number);

// The picture behind the rows, as translucent strokes of `ink`: a radar whose centre lies near the lower right corner.
QPixmap gridBackdrop(const QColor& ink, qreal devicePixelRatio);

}  // namespace vantrel

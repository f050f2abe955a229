// The program's pictures, drawn from SVG, so that they are crisp at every size and device pixel ratio.
#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace vantrel {

// `name`: of a file in this folder, without its ending. A name that is none draws nothing. What the drawing leaves to
// its place is drawn in `ink`.
void paintPicture(QPainter& painter, const QString& name, const QRectF& place, const QColor& ink = Qt::black);

// In the largest square in the middle of whatever place it gets; of a disabled button fainter.
QIcon pictureIcon(const QString& name, const QColor& ink = Qt::black);

// Of the drawing, in pixels at 100 %; empty when there is none of that name.
QSizeF pictureSize(const QString& name);

}  // namespace vantrel

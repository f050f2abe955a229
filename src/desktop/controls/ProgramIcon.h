// The program's mark: the rows of a list, one of them lit, on the disc of a radar.
#pragma once

#include <QIcon>

class QPainter;
class QRectF;

namespace vantrel {

// In every size in which desktops show icons; up to 24 pixels it is a plainer drawing that keeps to whole pixels.
QIcon programIcon();

// The mark in a square, at any size. packaging/vantrel-ce.svg is the same drawing.
void paintProgramIcon(QPainter& painter, const QRectF& square);

}  // namespace vantrel

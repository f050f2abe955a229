// The models' colours on the screen, and what can be read on them.
#pragma once

#include <QColor>

#include "platform/Controls.h"

namespace vantrel {

// A colour of the system is the one that the application's palette has for the same purpose.
QColor screenColor(Color color);

// `wanted`, or, where that has too little contrast to `ground` for a text, the nearest to it that has enough.
QColor readable(const QColor& wanted, const QColor& ground);

}  // namespace vantrel

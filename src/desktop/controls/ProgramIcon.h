// The program's mark: the rows of a list, one of them lit, on the disc of a radar.
#pragma once

#include <QIcon>

namespace vantrel {

// In every size in which desktops show icons; up to 24 pixels it is a plainer drawing.
QIcon programIcon();

}  // namespace vantrel

// Small pictures on buttons of the pages, drawn from lines so that they are crisp at every size and device pixel ratio.
#pragma once

#include <QColor>
#include <QIcon>

namespace vantrel {

enum class PageIcon { eye, crossedEye, clear, lens, up, down, globe };

// In `ink`; of a disabled button fainter.
QIcon pageIcon(PageIcon picture, const QColor& ink);

}  // namespace vantrel

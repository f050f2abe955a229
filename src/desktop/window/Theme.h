// The colours and the font of everything that the colour settings do not reach: calm, dark, dense.
#pragma once

#include <QColor>

class QApplication;

namespace vantrel {

namespace theme {
inline constexpr QColor window{30, 32, 38};
inline constexpr QColor panel{38, 41, 49};
inline constexpr QColor edge{56, 60, 71};
inline constexpr QColor track{56, 60, 71};
inline constexpr QColor text{232, 234, 238};
inline constexpr QColor dimText{160, 166, 178};
inline constexpr QColor accent{70, 140, 220};
}  // namespace theme

// Gives the application its style, palette, font and style sheet.
void applyTheme(QApplication& application);

}  // namespace vantrel

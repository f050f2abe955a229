// The colours, the style and the font of everything that the colour settings do not reach: calm, dark, dense.
#pragma once

#include <QColor>

class QApplication;
class QLabel;
class QPushButton;
class QWidget;

namespace vantrel {

namespace theme {
inline constexpr QColor window{30, 32, 38};
inline constexpr QColor panel{38, 41, 49};
inline constexpr QColor field{23, 25, 30};   // behind text that is typed, and behind lists
inline constexpr QColor button{52, 56, 67};  // a button's face
inline constexpr QColor edge{56, 60, 71};
inline constexpr QColor track{56, 60, 71};
inline constexpr QColor text{232, 234, 238};
inline constexpr QColor dimText{160, 166, 178};
inline constexpr QColor accent{70, 140, 220};
inline constexpr QColor strong{47, 109, 181};   // behind white text: the main button, what is selected
inline constexpr QColor focus{169, 205, 245};   // the ring around what has the focus
inline constexpr QColor lampOn{108, 198, 122};  // an indicator that is on
inline constexpr QColor redTeam{240, 110, 110};
inline constexpr QColor blueTeam{110, 165, 250};
}  // namespace theme

// Gives the application its style, palette and font. There is no style sheet: with one, a widget would no longer take
// the colours of the panel that it stands in.
void applyTheme(QApplication& application);

// The button that a user most likely wants, of which a window has one.
void makePrimary(QPushButton& button);
// What stands in the widget explains something else: its text steps back.
void makeDim(QWidget& widget);
// The caption of a page or of a part of it.
void makeHeading(QLabel& label);

}  // namespace vantrel

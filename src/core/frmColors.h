// The state of the window in which the main window's colours are chosen.
#pragma once

#include <array>

#include "platform/Controls.h"

namespace vantrel {

enum class ColorCommand { colorize, darkText, lightText, copyRgb, copyHex, copyLong, exit };

struct frmColors {
  static constexpr std::size_t swatches = 40;

  frmColors();

  Field<bool> visible{false};
  Field<std::string> caption{"Color Options"};
  ListBox lstColor;          // the five roles
  Field<Color> CurColor{0};  // the colour being edited
  TextBox R;                 // its parts, 0 to 255
  TextBox G;
  TextBox B;
  TextBox HEXvalue;             // red, green, blue, in two hexadecimal digits each
  TextBox LongValue;            // as a decimal number
  std::array<Label, 3> ViewAs;  // which of the boxes are shown
  std::array<Color, swatches> MiniPicker = {};
  CheckBox chkAuto;  // nothing hangs on it
  Label lblNote;
  Button cmdColorize;
  Button Command2;  // dark text
  Button Command3;  // light text

  Signal<> focusWanted;  // fired by the logic: the window comes to the front
  // Fired by a view.
  Signal<> roleClicked;           // behind the selection
  Signal<Color> pickerPressed;    // colour of the chart under the pointer
  Signal<int> miniPickerPressed;  // number of a swatch
  Signal<int> viewAsPressed;      // number of a label; a mouse button goes down on it
  Signal<int> viewAsReleased;
  Signal<int> viewAsClicked;
  Signal<ColorCommand> pressed;
  Signal<> closed;
};

}  // namespace vantrel

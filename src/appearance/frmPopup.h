// The fields of the window from which balloons take what they show. It is never on the screen; the answers of the
// balloons come back to it.
#pragma once

#include <array>
#include <string>

#include "platform/Controls.h"
#include "platform/PopupDisplay.h"

namespace vantrel {

class frmPopup : public PopupAnswers {
 public:
  frmPopup() { unload(); }

  TextBox Text11;  // the message
  TextBox txtTitle;
  ComboBox Combo1;                   // the icon
  CheckBox Check3;                   // whether there is a button that closes it
  CheckBox Check2;                   // whether it ends by itself
  TextBox Text2;                     // seconds to that
  ComboBox Combo2;                   // size of the text
  TextBox Text1;                     // its font
  std::array<bool, 2> Option2 = {};  // at the mouse, or at a place of its own
  std::array<TextBox, 2> Text3;      // that place
  std::array<bool, 4> Option1 = {};  // whether the buttons 1 to 3 are there
  TextBox txt1;                      // their texts
  TextBox txt2;
  TextBox txt3;
  ComboBox Combo5;  // number of text boxes of an input box
  ComboBox Combo4;  // "Input" or "Balloon"

  // The answers, empty until they have come.
  std::string msgBack;
  std::string firstInput;
  std::string lastInput;

  // Every field as it was at first. The answers stay: a balloon that waits further out is still to see them.
  void unload();
  void clearAnswers();

  // What the fields ask for. Throws failure 13 when a number is none.
  PopupRequest request();

  void MsgBack(const std::string& text) override { msgBack = text; }
  void InputBack(const std::string& fields) override;
};

}  // namespace vantrel

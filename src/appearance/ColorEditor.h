// What the user does in the window of the colours: one colour in five forms, and the role that it is given to.
#pragma once

#include <functional>
#include <vector>

#include "appearance/modColors.h"
#include "core/frmColors.h"
#include "platform/Notices.h"
#include "platform/Shell.h"

namespace vantrel {

// All of it must outlive the editor.
struct ColorEditorContext {
  frmMain& mainWindow;
  frmColors& window;
  modColors& colors;
  Notices& notices;
  Shell& shell;
};

class ColorEditor {
 public:
  explicit ColorEditor(const ColorEditorContext& context);

  // Shows the window as it is at first, or brings it to the front when it is shown already.
  void open();
  void unload();

  // Each writes the colour being edited into the boxes of one form.
  void
  GetHEXValue();  // from `R`, `G` and `B`; throws failure 13 when one of them is no number, 6 when it is out of range
  void GetLongValue();
  void GetRGBValue();

 private:
  void listen();
  void onChange(TextBox& box, void (ColorEditor::*handler)());
  void changeParts();
  void changeLong();
  void changeHex();
  void take(Color color);
  void showRole();
  void chooseView(int number);
  void run(ColorCommand command);
  void colorize();
  void paintTexts(Color color);
  void copyRgb();

  ColorEditorContext c_;
  frmColors& window_;
  bool writing_ = false;  // what changes in the boxes is the editor's own doing
  std::vector<Connection> connections_;
};

}  // namespace vantrel

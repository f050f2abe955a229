// Bind functions: each ties one control model to one widget for as long as the Connections are kept. The widget shows
// what the model holds, and what the user does goes to the model. Model and widget must outlive the Connections.
#pragma once

#include <QString>
#include <vector>

#include "core/Commands.h"
#include "platform/Controls.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QWidget;

namespace vantrel {

class LvButton;
class TextField;

// The connections of one window or page.
class Bindings {
 public:
  // Caption, colours and whether it is there. `mnemonic`, a letter of the caption or 0, leads to the label's buddy.
  void bindLabel(QLabel& widget, Label& model, char mnemonic = 0);
  // What stands on the widget: the colour, and texts without a colour of their own so that they can be read on it.
  void bindGround(QWidget& widget, Field<Color>& color);
  // A text that may change a hundred times a second and is shown a few times a second.
  void bindNumber(QLabel& widget, Field<std::string>& text);

  // Text, both ways, keys, tool tip and whether it can be edited. Without a tool tip in the model the widget's own
  // stays.
  void bindTextBox(TextField& widget, TextBox& model);
  // Text and colour of a box that is only shown.
  void bindShownText(QLabel& widget, TextBox& model);
  // The path of a file or folder, only shown.
  void bindPath(TextField& widget, TextBox& model);
  void bindCheckBox(QCheckBox& widget, CheckBox& model);
  // A box that is no editable one shows a text that is none of its items nevertheless.
  void bindComboBox(QComboBox& widget, ComboBox& model);

  // Caption with `mnemonic`, one of its letters or 0, underlined; whether it can be pressed, is there, is the pressed
  // one of its pair. A click runs the command of that number.
  void bindCommand(QAbstractButton& widget, frmMain& window, Commands& commands, int number, char mnemonic = 0);

  // The colours of a button of the main window.
  void bindColors(LvButton& widget, Button& model);

  // Whether the widget is there.
  void bindVisible(QWidget& widget, Field<bool>& visible);
  // The same for a widget that something else covers while `cover` is set: it is out of the way then, also for keys.
  void bindUncovered(QWidget& widget, Field<bool>& visible, Field<bool>& cover);
  // Its place in its parent, rounded to whole pixels.
  void bindPlace(QWidget& widget, Field<Placement>& place);

  void keep(Connection connection) { connections_.push_back(std::move(connection)); }

 private:
  // Calls `show` now and after each change of the field.
  template <class T, class Show>
  void follow(Field<T>& field, Show show) {
    show(field.get());
    keep(field.changed.connect([&field, show] { show(field.get()); }));
  }

  std::vector<Connection> connections_;
};

// A caption as the toolkit wants it: each "&" doubled, and one put before the first `mnemonic` in either case.
QString withMnemonic(const QString& caption, char mnemonic);

}  // namespace vantrel

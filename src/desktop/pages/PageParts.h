// What the pages are made of: headings, labels that lead to their boxes, boxes and buttons. Each is tied to its model,
// and named after it, as it is made.
#pragma once

#include <QString>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace vantrel {

class TextField;

// The grid that the pages keep to, in pixels at 100 %. Their upper edges are not at one height, what stands in them is.
namespace page {
inline constexpr int edge = 12;       // from the window's sides, and between the left page and the panels beside it
inline constexpr int half = 6;        // either's share of what is between them
inline constexpr int top = 7;         // in a page on the left
inline constexpr int topBeside = 12;  // in a panel beside it, which begins higher
inline constexpr int padding = 10;    // in a card
inline constexpr int gap = 6;
}  // namespace page

class PageParts {
 public:
  enum class Text { ofTheList, free };  // what may stand in a combo box

  // All three must outlive this, and `window` and `commands` must outlive `bindings`.
  PageParts(Bindings& bindings, frmMain& window, Commands& commands)
      : bindings_(bindings), window_(window), commands_(commands) {}

  // The heading `number` of `lblText2`.
  QLabel* heading(int number, QWidget* parent);
  // The label `number` of `lblText`. It leads to `buddy`, by its mnemonic, a letter or 0, too, and names it when
  // it has no name yet.
  QLabel* label(int number, QWidget* parent, QWidget* buddy = nullptr, char mnemonic = 0);
  TextField* box(const char* name, TextBox& model, QWidget* parent, const QString& toolTip = {});
  // The wheel does not change what stands in it: it is for the page.
  QComboBox* comboBox(const char* name, ComboBox& model, Text text, QWidget* parent, const QString& toolTip = {});
  QCheckBox* checkBox(const QString& name, CheckBox& model, QWidget* parent, const QString& toolTip);
  QPushButton* button(int number, QWidget* parent, char mnemonic = 0, const QString& toolTip = {});

 private:
  Bindings& bindings_;
  frmMain& window_;
  Commands& commands_;
};

// The column of a page on the left of the window.
QVBoxLayout* leftColumn(QWidget* content);

}  // namespace vantrel

// Two option buttons of which at most one is pressed, side by side like one control with two halves.
#pragma once

#include <QWidget>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"
#include "desktop/controls/LvButton.h"

namespace vantrel {

class OptionPair : public QWidget {
  Q_OBJECT

 public:
  // The commands of the left and the right half; a letter of each caption, or 0, is its mnemonic.
  struct Half {
    command::Number number{};
    char mnemonic = 0;
  };

  // `window` and `commands` must outlive `bindings`. `accessibleName` tells what is chosen: "Auto refresh".
  OptionPair(Bindings& bindings, frmMain& window, Commands& commands, Half left, Half right,
             const QString& accessibleName, QWidget* parent);

  LvButton& left() { return *left_; }
  LvButton& right() { return *right_; }

 private:
  LvButton* left_;
  LvButton* right_;
};

}  // namespace vantrel

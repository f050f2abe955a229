#include "desktop/controls/OptionPair.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace vantrel {

OptionPair::OptionPair(Bindings& bindings, frmMain& window, Commands& commands, Half left, Half right,
                       const QString& accessibleName, QWidget* parent)
    : QWidget(parent), left_(new QPushButton(this)), right_(new QPushButton(this)) {
  setAccessibleName(accessibleName);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  for (const auto& [button, half] : {std::pair(left_, left), std::pair(right_, right)}) {
    button->setCheckable(true);
    bindings.bindCommand(*button, window, commands, half.number, half.mnemonic);
    button->setAccessibleDescription(accessibleName);
    row->addWidget(button);
  }
  left_->setProperty("segment", "left");
  right_->setProperty("segment", "right");
}

}  // namespace vantrel

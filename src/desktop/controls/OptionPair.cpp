#include "desktop/controls/OptionPair.h"
#include "desktop/controls/LvButton.h"

#include <QHBoxLayout>
#include <memory>

namespace vantrel {

OptionPair::OptionPair(Bindings& bindings, frmMain& window, Commands& commands, Half left, Half right,
                       const QString& accessibleName, QWidget* parent)
    : QWidget(parent) {
  const auto container = std::make_shared<ButtonContainer>();
  left_ = new LvButton(this, container);
  right_ = new LvButton(this, container);
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
}

}  // namespace vantrel

#include "desktop/pages/PageParts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "desktop/controls/LvButton.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

class WheelPassingComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

// A caption as it is read out: without mnemonic, colon and padding.
QString spoken(const QLabel& label) {
  return label.text().remove(QLatin1Char('&')).remove(QLatin1Char(':')).simplified();
}

}  // namespace

QLabel* PageParts::heading(int number, QWidget* parent) {
  auto* const heading = new QLabel(parent);
  heading->setObjectName(QStringLiteral("lblText2_%1").arg(number));
  makeHeading(*heading);
  bindings_.bindLabel(*heading, window_.lblText2[static_cast<std::size_t>(number)]);
  return heading;
}

QLabel* PageParts::label(int number, QWidget* parent, QWidget* buddy, char mnemonic) {
  auto* const label = new QLabel(parent);
  label->setObjectName(QStringLiteral("lblText%1").arg(number));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  bindings_.bindLabel(*label, window_.lblText[static_cast<std::size_t>(number)], mnemonic);
  if (buddy != nullptr) {
    label->setBuddy(buddy);
    if (buddy->accessibleName().isEmpty()) {
      buddy->setAccessibleName(spoken(*label));
    }
  }
  return label;
}

TextField* PageParts::box(const char* name, TextBox& model, QWidget* parent, const QString& toolTip) {
  auto* const box = new TextField(parent);
  box->setObjectName(name);
  box->setToolTip(toolTip);
  bindings_.bindTextBox(*box, model);
  return box;
}

// A text is taken as it is typed, and not made longer into one of the list.
QComboBox* PageParts::comboBox(const char* name, ComboBox& model, Text text, QWidget* parent, const QString& toolTip) {
  auto* const box = new WheelPassingComboBox(parent);
  box->setObjectName(name);
  box->setToolTip(toolTip);
  if (text == Text::free) {
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
  }
  bindings_.bindComboBox(*box, model);
  return box;
}

QCheckBox* PageParts::checkBox(const QString& name, CheckBox& model, QWidget* parent, const QString& toolTip) {
  auto* const box = new QCheckBox(parent);
  box->setObjectName(name);
  box->setToolTip(toolTip);
  bindings_.bindCheckBox(*box, model);
  box->setAccessibleName(box->text());
  return box;
}

QPushButton* PageParts::button(int number, QWidget* parent, char mnemonic, const QString& toolTip) {
  auto* const button = new LvButton(parent);
  button->setToolTip(toolTip);
  bindings_.bindCommand(*button, window_, commands_, number, mnemonic);
  return button;
}

QVBoxLayout* leftColumn(QWidget* content) {
  auto* const column = new QVBoxLayout(content);
  column->setContentsMargins(page::edge, page::top, page::half, page::edge);
  column->setSpacing(page::gap);
  return column;
}

}  // namespace vantrel

#include "desktop/controls/Bindings.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPalette>
#include <QPointer>
#include <QTimer>
#include <cmath>

#include "core/Text.h"
#include "desktop/controls/Inks.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/grid/ServerGridIcons.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// The widget's own colours, also while it is disabled, for a colour of the system.
void paint(QWidget& widget, QPalette::ColorRole role, Color color) {
  QPalette palette = widget.palette();
  if (colors::isSystem(color)) {
    const QPalette own = widget.parentWidget() == nullptr ? QPalette() : widget.parentWidget()->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      palette.setBrush(group, role, own.brush(group, role));
    }
  } else {
    palette.setColor(role, gridColor(color));
  }
  widget.setPalette(palette);
}

// The system's text has a dark and a light form.
QColor inkOn(Color back, Color fore) {
  const QColor ground = screenColor(back);
  const QColor ink = screenColor(fore);
  if (!colors::isSystem(fore) || readable(ink, ground) == ink) {
    return readable(ink, ground);
  }
  return readable(theme::window, ground);
}

// Of texts on a ground of their own. What is the system's comes from the parent, and follows it. A state of the program
// may give a text a ground that its colour was not chosen for.
void paintOn(QWidget& widget, Color fore, Color back) {
  QPalette palette;
  if (!colors::isSystem(back)) {
    palette.setColor(QPalette::Window, screenColor(back));
  }
  if (!colors::isSystem(fore) || !colors::isSystem(back)) {
    palette.setColor(QPalette::WindowText, colors::isSystem(back) ? screenColor(fore) : inkOn(back, fore));
  }
  widget.setPalette(palette);
}

int pixels(float twips) {
  return static_cast<int>(std::lround(twips / twipsPerPixel));
}

// A button that goes off while it has the focus hands it to the window: the toolkit would give it to the next button,
// and a key that is pressed twice would press that one too. It comes back with the button, unless the user has gone on.
void showEnabled(QWidget& button, bool enabled) {
  constexpr const char* lent = "focusLent";
  QWidget* const window = button.window();
  if (!enabled && button.hasFocus()) {
    button.setProperty(lent, true);
    window->setFocus(Qt::OtherFocusReason);
  }
  button.setEnabled(enabled);
  if (enabled && button.property(lent).toBool()) {
    button.setProperty(lent, false);
    if (window->hasFocus()) {
      button.setFocus(Qt::OtherFocusReason);
    }
  }
}

}  // namespace

void Bindings::bindLabel(QLabel& widget, Label& model, char mnemonic) {
  widget.setTextFormat(Qt::PlainText);
  follow(model.caption, [&widget, mnemonic](const std::string& text) {
    const QString caption = fromCp1252(text);
    widget.setText(mnemonic == 0 ? caption : withMnemonic(caption, mnemonic));
  });
  bindVisible(widget, model.visible);
  const auto color = [&widget, &model](Color /*color*/) {
    paintOn(widget, model.foreColor.get(), model.backColor.get());
    widget.setAutoFillBackground(!colors::isSystem(model.backColor.get()));
  };
  follow(model.foreColor, color);
  follow(model.backColor, color);
}

void Bindings::bindGround(QWidget& widget, Field<Color>& color) {
  follow(color, [&widget](Color ground) { paintOn(widget, colors::systemText, ground); });
}

// The first change is shown at once, those that follow it closely are shown together.
void Bindings::bindNumber(QLabel& widget, Field<std::string>& text) {
  auto* const pause = new QTimer(&widget);
  pause->setSingleShot(true);
  pause->setInterval(60);
  widget.setTextFormat(Qt::PlainText);
  const auto show = [&widget, &text] { widget.setText(fromCp1252(text.get())); };
  QObject::connect(pause, &QTimer::timeout, &widget, show);
  show();
  keep(text.changed.connect([pause, show] {
    if (!pause->isActive()) {
      show();
      pause->start();
    }
  }));
}

void Bindings::bindTextBox(TextField& widget, TextBox& model) {
  follow(model.text, [&widget](const std::string& text) { widget.showText(fromCp1252(text)); });
  follow(model.enabled, [&widget](bool enabled) { widget.setEnabled(enabled); });
  follow(model.foreColor, [&widget](Color color) { paint(widget, QPalette::Text, color); });
  const QString ownToolTip = widget.toolTip();
  follow(model.toolTip, [&widget, ownToolTip](const std::string& text) {
    widget.setToolTip(text.empty() ? ownToolTip : fromCp1252(text));
  });
  keep(model.typingGoesOn.connect([&widget] {
    if (widget.isVisible()) {
      widget.setFocus();
    }
  }));
  widget.onKey([&model](KeyPress& key) { model.keyPress.fire(key); });
  widget.onPaste([&model](std::string& text) { model.pasting.fire(text); });
  QObject::connect(&widget, &TextField::edited, &widget,
                   [&model](const QString& text) { model.text.set(toCp1252(text)); });
}

void Bindings::bindShownText(QLabel& widget, TextBox& model) {
  widget.setTextFormat(Qt::PlainText);
  follow(model.text, [&widget](const std::string& text) { widget.setText(fromCp1252(text)); });
  follow(model.foreColor, [&widget](Color color) { paint(widget, QPalette::WindowText, color); });
}

void Bindings::bindPath(TextField& widget, TextBox& model) {
  widget.setReadOnly(true);
  follow(model.text, [&widget](const std::string& path) {
    widget.showText(QFile::decodeName(QByteArray::fromStdString(path)));
    widget.end(false);
  });
  follow(model.foreColor, [&widget](Color color) { paint(widget, QPalette::Text, color); });
}

void Bindings::bindCheckBox(QCheckBox& widget, CheckBox& model) {
  follow(model.caption, [&widget](const std::string& text) { widget.setText(withMnemonic(fromCp1252(text), 0)); });
  follow(model.value, [&widget](int value) {
    widget.setCheckState(value == 0 ? Qt::Unchecked : value == 1 ? Qt::Checked : Qt::PartiallyChecked);
  });
  const auto color = [&widget, &model](Color /*color*/) {
    paintOn(widget, model.foreColor.get(), model.backColor.get());
    widget.setAutoFillBackground(!colors::isSystem(model.backColor.get()));
  };
  widget.setBackgroundRole(QPalette::Window);
  follow(model.foreColor, color);
  follow(model.backColor, color);
  QObject::connect(&widget, &QCheckBox::clicked, &widget, [&model](bool checked) { model.value.set(checked ? 1 : 0); });
}

void Bindings::bindComboBox(QComboBox& widget, ComboBox& model) {
  const auto showText = [&widget, &model] {
    const QString text = fromCp1252(model.text.get());
    if (widget.isEditable()) {
      if (widget.currentText() != text) {
        widget.setEditText(text);
      }
    } else {
      widget.setCurrentIndex(widget.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
      widget.setPlaceholderText(text);
    }
  };
  follow(model.items, [&widget, showText](const std::vector<std::string>& items) {
    widget.clear();
    for (const std::string& item : items) {
      widget.addItem(fromCp1252(item));
    }
    showText();
  });
  follow(model.text, [showText](const std::string& /*text*/) { showText(); });
  QObject::connect(&widget, &QComboBox::textActivated, &widget,
                   [&model](const QString& text) { model.text.set(toCp1252(text)); });
  if (widget.isEditable()) {
    QObject::connect(widget.lineEdit(), &QLineEdit::textEdited, &widget,
                     [&model](const QString& text) { model.text.set(toCp1252(text)); });
  }
}

void Bindings::bindCommand(QAbstractButton& widget, frmMain& window, Commands& commands, int number, char mnemonic) {
  Button& model = window.cmdMenu[static_cast<std::size_t>(number)];
  widget.setObjectName(QStringLiteral("cmdMenu%1").arg(number));
  follow(model.caption, [&widget, mnemonic](const std::string& text) {
    widget.setText(withMnemonic(fromCp1252(trimBlanks(text)), mnemonic));
    if (!text.empty()) {
      widget.setAccessibleName(fromCp1252(text).simplified());
    }
  });
  follow(model.enabled, [&widget](bool enabled) { showEnabled(widget, enabled); });
  bindVisible(widget, model.visible);
  follow(model.value, [&widget](int value) { widget.setChecked(value != 0); });
  if (auto* const button = qobject_cast<LvButton*>(&widget)) {
    bindColors(*button, model);
  }
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&widget, &model, &commands, number] {
    if (widget.isCheckable()) {
      model.value.set(1);
      widget.setChecked(true);
    }
    commands.cmdMenu_Click(number);
  });
}

void Bindings::bindColors(LvButton& widget, Button& model) {
  for (Field<Color>* const color : {&model.backColor, &model.foreColor, &model.gradientColor}) {
    follow(*color, [&widget, &model](Color /*changed*/) {
      widget.setColors(model.backColor.get(), model.foreColor.get(), model.gradientColor.get());
    });
  }
}

void Bindings::bindVisible(QWidget& widget, Field<bool>& visible) {
  follow(visible, [&widget](bool shown) { widget.setVisible(shown); });
}

void Bindings::bindUncovered(QWidget& widget, Field<bool>& visible, Field<bool>& cover) {
  const auto show = [&widget, &visible, &cover](bool /*changed*/) { widget.setVisible(visible.get() && !cover.get()); };
  follow(visible, show);
  follow(cover, show);
}

void Bindings::bindPlace(QWidget& widget, Field<Placement>& place) {
  follow(place, [&widget](const Placement& twips) {
    widget.setGeometry(pixels(twips.Left), pixels(twips.Top), pixels(twips.Width), pixels(twips.Height));
  });
}

QString withMnemonic(const QString& caption, char mnemonic) {
  QString result = caption;
  const qsizetype at = mnemonic == 0 ? -1 : caption.indexOf(QLatin1Char(mnemonic), 0, Qt::CaseInsensitive);
  result.replace(QLatin1Char('&'), QStringLiteral("&&"));
  if (at >= 0) {
    result.insert(at + caption.left(at).count(QLatin1Char('&')), QLatin1Char('&'));
  }
  return result;
}

}  // namespace vantrel

#include "desktop/controls/Theme.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QToolTip>

#include "desktop/controls/CalmStyle.h"

namespace vantrel {
namespace {

constexpr qreal textSize = 8.25;     // points
constexpr qreal headingSize = 10;    // points
constexpr int disabledDarker = 165;  // percent

QPalette darkPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, theme::window);
  palette.setColor(QPalette::WindowText, theme::text);
  palette.setColor(QPalette::Base, theme::field);
  palette.setColor(QPalette::AlternateBase, theme::window);
  palette.setColor(QPalette::Text, theme::text);
  palette.setColor(QPalette::Button, theme::button);
  palette.setColor(QPalette::ButtonText, theme::text);
  palette.setColor(QPalette::ToolTipBase, theme::panel);
  palette.setColor(QPalette::ToolTipText, theme::text);
  palette.setColor(QPalette::PlaceholderText, theme::dimText);
  palette.setColor(QPalette::Mid, theme::edge);
  palette.setColor(QPalette::Highlight, theme::strong);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, theme::focus);
  palette.setColor(QPalette::LinkVisited, theme::focus);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, theme::dimText.darker(disabledDarker));
  }
  palette.setColor(QPalette::Disabled, QPalette::Button, theme::panel);
  palette.setColor(QPalette::Disabled, QPalette::Base, theme::window);
  return palette;
}

}  // namespace

void applyTheme(QApplication& /*application*/) {
  QApplication::setStyle(new CalmStyle);
  QApplication::setPalette(darkPalette());
  QToolTip::setPalette(darkPalette());
  QFont font;
  font.setFamilies({"Tahoma", "Liberation Sans", "Noto Sans", "DejaVu Sans Condensed", "DejaVu Sans"});
  font.setPointSizeF(textSize);
  QApplication::setFont(font);
}

void makePrimary(QPushButton& button) {
  QPalette palette = button.palette();
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Button, theme::strong);
    palette.setColor(group, QPalette::ButtonText, Qt::white);
  }
  button.setPalette(palette);
}

void makeDim(QWidget& widget) {
  QPalette palette = widget.palette();
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::WindowText, theme::dimText);
  }
  widget.setPalette(palette);
}

void makeHeading(QLabel& label) {
  QFont font = label.font();
  font.setPointSizeF(headingSize);
  font.setBold(true);
  label.setFont(font);
}

}  // namespace vantrel

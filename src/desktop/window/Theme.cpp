#include "desktop/window/Theme.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace vantrel {
namespace {

QPalette darkPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, theme::window);
  palette.setColor(QPalette::WindowText, theme::text);
  palette.setColor(QPalette::Base, theme::panel);
  palette.setColor(QPalette::AlternateBase, theme::window);
  palette.setColor(QPalette::Text, theme::text);
  palette.setColor(QPalette::Button, theme::panel);
  palette.setColor(QPalette::ButtonText, theme::text);
  palette.setColor(QPalette::ToolTipBase, theme::panel);
  palette.setColor(QPalette::ToolTipText, theme::text);
  palette.setColor(QPalette::PlaceholderText, theme::dimText);
  palette.setColor(QPalette::Highlight, theme::accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, theme::dimText.darker(140));
  }
  return palette;
}

constexpr const char* styleSheet = R"(
#header { background: #262931; border-bottom: 1px solid #383c47; }
#lblCount { color: #a0a6b2; }
QLabel[role="total"] { font-size: 14pt; color: #ffffff; }
QLabel[role="totalCaption"] { color: #a0a6b2; }
#header QPushButton {
  outline: none;
  background: #2f6db5; color: #ffffff; border: 1px solid #3f7fca; border-radius: 4px; padding: 7px 16px;
}
#header QPushButton:hover { background: #3a7ccb; }
#header QPushButton:pressed { background: #285e9d; }
#header QPushButton:focus { border: 1px solid #a9cdf5; }
#header QPushButton:disabled { background: #343843; border-color: #404552; color: #7d8391; }
#notice { background: #f0f1f4; border: 1px solid #9aa1ae; border-radius: 5px; }
#notice QLabel { color: #20232a; }
QToolTip { color: #e8eaee; background: #262931; border: 1px solid #4a4f5c; padding: 2px; }
)";

}  // namespace

void applyTheme(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(darkPalette());
  QFont font;
  font.setFamilies({"Tahoma", "Liberation Sans", "Noto Sans", "DejaVu Sans Condensed", "DejaVu Sans"});
  font.setPointSizeF(8.25);
  QApplication::setFont(font);
  application.setStyleSheet(styleSheet);
}

}  // namespace vantrel

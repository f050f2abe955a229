#include "desktop/controls/Inks.h"

#include <QGuiApplication>
#include <QPalette>

#include "desktop/controls/CalmStyle.h"
#include "desktop/controls/FavesInks.h"
#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {
namespace {

constexpr double enough = 4.5;
constexpr int steps = 20;

// The numbers of the system's colours. Those of the desktop, the title bars and the like have no like here.
QPalette::ColorRole roleOf(Color color) {
  switch (color & 0xFF) {
    case 5:  // window
      return QPalette::Base;
    case 7:  // menu text
    case 8:  // window text
      return QPalette::WindowText;
    case 13:
      return QPalette::Highlight;
    case 14:
      return QPalette::HighlightedText;
    case 17:  // grey text
      return QPalette::PlaceholderText;
    case 18:
      return QPalette::ButtonText;
    case 6:   // window frame
    case 10:  // active border
    case 11:
    case 16:  // button shadow
      return QPalette::Mid;
    case 20:
      return QPalette::Light;
    case 21:
      return QPalette::Dark;
    case 23:
      return QPalette::ToolTipText;
    case 24:
      return QPalette::ToolTipBase;
    default:
      return QPalette::Window;
  }
}

}  // namespace

QColor screenColor(Color color) {
  return colors::isSystem(color) ? QGuiApplication::palette().color(roleOf(color)) : gridColor(color);
}

QColor readable(const QColor& wanted, const QColor& ground) {
  const double behind = luminance(ground);
  const QColor end = contrast(1, behind) > contrast(0, behind) ? Qt::white : Qt::black;
  for (int step = 0; step < steps; ++step) {
    const QColor color = QColor::fromRgb(mixed(wanted, end, static_cast<double>(step) / steps).rgb());
    if (contrast(luminance(color), behind) >= enough) {
      return color;
    }
  }
  return end;
}

}  // namespace vantrel

#include "core/frmColors.h"

namespace vantrel {
namespace {

// As red, green, blue from the highest byte down.
constexpr std::array<std::uint32_t, frmColors::swatches> swatchColors = {
    0x000000, 0xFFC0C0, 0x808080, 0xC0C0C0, 0xE0E0E0, 0xFFFFFF,  // a row of the window takes five of the others
    0xFF8080, 0xFF0000, 0xC00000, 0x800000,                      //
    0xFFE0C0, 0xFFC080, 0xFF8000, 0xC04000, 0x804000,            //
    0xFFFFC0, 0xFFFF80, 0xFFFF00, 0xC0C000, 0x808000,            //
    0xC0FFC0, 0x80FF80, 0x00FF00, 0x00C000, 0x008000,            //
    0xC0FFFF, 0x80FFFF, 0x00FFFF, 0x00C0C0, 0x008080,            //
    0xC0C0FF, 0x8080FF, 0x0000FF, 0x0000C0, 0x000080,            //
    0xFFC0FF, 0xFF80FF, 0xFF00FF, 0xC000C0, 0x800080,
};

constexpr Color fromRgb(std::uint32_t rgb) {
  return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

}  // namespace

frmColors::frmColors() {
  for (const char* const role : {"Background Color", "Text Color", "Text Color 2", "Label Color", "Label Border"}) {
    lstColor.add(role);
  }
  for (std::size_t i = 0; i < swatches; ++i) {
    MiniPicker[i] = fromRgb(swatchColors[i]);
  }
  chkAuto.caption.set("Don't apply color automatically");
  lblNote.caption.set("Changes do not take effect until you \"colorize\".");
  cmdColorize.caption.set("Colorize");
  Command2.caption.set("dark text");
  Command3.caption.set("light text");
  for (Label& label : ViewAs) {
    label.foreColor.set(colors::black);
  }
}

}  // namespace vantrel

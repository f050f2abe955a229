// The main window's colours: five of them, one for each role, each with a routine that paints all that plays the role.
#pragma once

#include <array>
#include <string>

#include "core/frmMain.h"
#include "core/modReg.h"

namespace vantrel {

inline constexpr const char* colorsKey = "Software\\Marrowind\\VantrelCE\\Settings\\Colors";

// In the order in which they are painted.
enum class ColorRole { background, text, text2, label, border };
inline constexpr int colorRoles = 5;

// A colour as text: "&H" and up to eight hexadecimal digits, or a decimal number. A decimal number with the top bit set
// may be written signed or unsigned. Throws failure 13 for any other text, 6 for a number that is no colour.
Color parseColor(const std::string& text);
// As a decimal number, below 0 when the top bit is set.
std::string colorText(Color color);

class modColors {
 public:
  // Both must outlive this.
  modColors(frmMain& window, modReg& registry) : window_(window), registry_(registry) {}

  // Takes the five colours from the registry and paints them. One that is absent has its default, which is written
  // there.
  void loadColors();
  // In the order of the roles. A text that is no colour leaves what plays its role as it is.
  void paintColors(const std::array<std::string, colorRoles>& texts);
  // Stores a colour, for the next start.
  void keep(ColorRole role, Color color);

  // Each throws as `parseColor`, with nothing painted, and stores nothing.
  void paint(ColorRole role, const std::string& text);
  void paintBackColor(const std::string& text);
  void paintTextColor(const std::string& text);
  void paintTextColor2(const std::string& text);
  void paintLabelColor(const std::string& text);
  void paintLabelBorder(const std::string& text);

 private:
  std::array<ListView*, 5> lists();

  frmMain& window_;
  modReg& registry_;
};

}  // namespace vantrel

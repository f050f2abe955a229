#include "appearance/modColors.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

struct StoredColor {
  const char* name;
  const char* ifAbsent;
};

constexpr std::array<StoredColor, colorRoles> storedColors{{
    {"backColor", "&H400000"},
    {"texts", "&H400000"},
    {"texts2", "&HF7F7F7"},
    {"shapes", "&HE0E0E0"},
    {"shapesbrdr", "&H80000008"},
}};

// The labels of the favorites' editor, which stand on the background.
constexpr std::size_t firstOfEditor = 26;
constexpr std::size_t lastOfEditor = 32;

const StoredColor& storedAs(ColorRole role) {
  return storedColors[static_cast<std::size_t>(role)];
}

bool isHexadecimal(std::string_view text) {
  return text.size() > 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h');
}

Color parseHexadecimal(std::string_view digits) {
  Color color = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), color, 16);
  if (end != digits.data() + digits.size()) {
    throw failures::typeMismatch();
  }
  if (error == std::errc::result_out_of_range) {
    throw failures::overflow();
  }
  return color;
}

Color parseDecimal(std::string_view text) {
  const double number = std::nearbyint(toNumber(text));
  if (!(number >= std::numeric_limits<std::int32_t>::min() && number <= std::numeric_limits<Color>::max())) {
    throw failures::overflow();
  }
  return static_cast<Color>(static_cast<std::int64_t>(number));
}

}  // namespace

Color parseColor(const std::string& text) {
  const std::string_view trimmed = trimBlanks(text);
  const Color color = isHexadecimal(trimmed) ? parseHexadecimal(trimmed.substr(2)) : parseDecimal(trimmed);
  if (!colors::isSystem(color) && color > colors::white) {
    throw failures::overflow();
  }
  return color;
}

std::string colorText(Color color) {
  return std::to_string(static_cast<std::int32_t>(color));
}

void modColors::loadColors() {
  std::array<std::string, colorRoles> texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const auto& [name, ifAbsent] = storedColors[i];
    texts[i] = registry_.GetRegValue(RegistryRoot::currentUser, colorsKey, name);
    if (texts[i] == notFound) {
      texts[i] = ifAbsent;
      registry_.SetRegValue(RegistryRoot::currentUser, colorsKey, name, RegistryType::text, ifAbsent);
    }
  }
  paintColors(texts);
}

// The buttons take the text's colour and then the other text's, which they keep.
void modColors::paintColors(const std::array<std::string, colorRoles>& texts) {
  const SkippingSteps step;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    step([&] { paint(static_cast<ColorRole>(i), texts[i]); });
  }
}

void modColors::keep(ColorRole role, Color color) {
  registry_.SetRegValue(RegistryRoot::currentUser, colorsKey, storedAs(role).name, RegistryType::text,
                        colorText(color));
}

void modColors::paint(ColorRole role, const std::string& text) {
  switch (role) {
    case ColorRole::background:
      return paintBackColor(text);
    case ColorRole::text:
      return paintTextColor(text);
    case ColorRole::text2:
      return paintTextColor2(text);
    case ColorRole::label:
      return paintLabelColor(text);
    case ColorRole::border:
      return paintLabelBorder(text);
  }
}

void modColors::paintBackColor(const std::string& text) {
  const Color color = parseColor(text);
  frmMain& w = window_;
  GridLook grid = w.grdServers.look();
  grid.background = color;
  grid.alternateRow = color;
  w.grdServers.setLook(grid);
  for (Panel* const panel : {&w.PicBG, &w.picFaves, &w.picFaves2, &w.PicAbout, &w.picSettings, &w.picRef, &w.picLaunch,
                             &w.picScore, &w.picTools, &w.PicServers, &w.PicChat}) {
    panel->backColor.set(color);
  }
  w.backColor.set(color);
  w.chkSplash.backColor.set(color);
  w.chkOldSplash.backColor.set(color);
  FavoritesLook faves = w.myFaves1.look.get();
  faves.background = color;
  w.myFaves1.look.set(faves);
  for (Button& button : w.cmdMenu) {
    button.backColor.set(color);
  }
}

void modColors::paintTextColor(const std::string& text) {
  const Color color = parseColor(text);
  frmMain& w = window_;
  w.lblText2[0].foreColor.set(color);
  for (std::size_t i = 1; i < w.lblText.size(); ++i) {
    w.lblText[i].foreColor.set(color);
  }
  for (CheckBox& option : w.chkOptions) {
    option.foreColor.set(color);
  }
  w.lblPlayers.foreColor.set(color);
  for (ListView* const list : lists()) {
    list->foreColor.set(color);
  }
  for (Button& button : w.cmdMenu) {
    button.foreColor.set(color);
  }
}

void modColors::paintTextColor2(const std::string& text) {
  const Color color = parseColor(text);
  frmMain& w = window_;
  for (std::size_t i = 1; i + 1 < w.lblText2.size(); ++i) {
    w.lblText2[i].foreColor.set(color);
  }
  for (std::size_t i = firstOfEditor; i <= lastOfEditor; ++i) {
    w.lblText[i].foreColor.set(color);
  }
  w.chkSplash.foreColor.set(color);
  w.chkOldSplash.foreColor.set(color);
  w.lblData.foreColor.set(color);
  FavoritesLook faves = w.myFaves1.look.get();
  faves.name = faves.hostname = faves.gametype = color;
  w.myFaves1.look.set(faves);
  for (Button& button : w.cmdMenu) {
    button.foreColor.set(color);
  }
}

void modColors::paintLabelColor(const std::string& text) {
  const Color color = parseColor(text);
  frmMain& w = window_;
  for (Shape& box : w.shpInfo) {
    box.backColor.set(color);
  }
  for (CheckBox& option : w.chkOptions) {
    option.backColor.set(color);
  }
  for (ListView* const list : lists()) {
    list->backColor.set(color);
  }
  w.picRefresh.backColor.set(color);
  w.picJoin.backColor.set(color);
  FavoritesLook faves = w.myFaves1.look.get();
  faves.selection = color;
  w.myFaves1.look.set(faves);
  for (Button& button : w.cmdMenu) {
    button.gradientColor.set(color);
  }
}

void modColors::paintLabelBorder(const std::string& text) {
  const Color color = parseColor(text);
  for (Shape& box : window_.shpInfo) {
    box.borderColor.set(color);
  }
  window_.Line1.borderColor.set(color);
}

std::array<ListView*, 5> modColors::lists() {
  frmMain& w = window_;
  return {&w.ListView1, &w.ListView2, &w.ListView3, &w.ListView4, &w.ListView5};
}

}  // namespace vantrel

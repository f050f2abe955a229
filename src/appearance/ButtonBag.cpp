// What a form keeps of a button.

#include "appearance/OptionGroup.h"
#include "appearance/lvButtons_H.h"
#include "core/FailureStyles.h"
#include "core/Numbers.h"

namespace vantrel {
namespace {

constexpr Color systemFace = 0x8000000F;
constexpr Color systemButtonText = 0x80000012;

std::string textOf(const PropertyBag& bag, const std::string& key) {
  const auto found = bag.find(key);
  return found == bag.end() ? std::string() : found->second;
}

// Numbers are kept in decimal; what is none counts as `preset`.
int numberOf(const PropertyBag& bag, const std::string& key, int preset) {
  const std::string text = textOf(bag, key);
  return isNumeric(text) ? static_cast<int>(toNumber(text)) : preset;
}

bool flagOf(const PropertyBag& bag, const std::string& key, bool preset) {
  const std::string text = textOf(bag, key);
  return text.empty() ? preset : text == "True";
}

// Colours are signed numbers, as those of the system have the top bit set.
Color colorOf(const PropertyBag& bag, const std::string& key, Color preset) {
  const std::string text = textOf(bag, key);
  Color color = preset;
  stopSilently([&] {
    if (isNumeric(text)) {
      color = static_cast<Color>(static_cast<std::int64_t>(toNumber(text)));
    }
  });
  return color;
}

std::string colorText(Color color) {
  return std::to_string(static_cast<std::int32_t>(color));
}

std::string flagText(bool flag) {
  return flag ? "True" : "False";
}

}  // namespace

void lvButtons_H::InitProperties(const std::string& displayName, Color containerBack) {
  delayDraw_ = true;
  setCaption(displayName);
  setBackColor(containerBack);
  DelayDrawing(false);
}

// The colours come last, when everything that they hang on is there. The picture itself is given separately.
void lvButtons_H::ReadProperties(const PropertyBag& bag) {
  delayDraw_ = true;
  setButtonStyle(numberOf(bag, "BackStyle", 0));
  setCaption(textOf(bag, "Caption"));
  setPictureAlign(numberOf(bag, "ImgAlign", 0));
  setCaptionAlign(numberOf(bag, "CapAlign", 2));
  setCaptionStyle(numberOf(bag, "CapStyle", 0));
  setPictureSize(numberOf(bag, "ImgSize", 16) / 8 - 2);
  setButtonShape(numberOf(bag, "Shape", 0));
  setCustomClick(numberOf(bag, "CustomClick", 0));
  setEnabled(flagOf(bag, "Enabled", true));
  showFocusRect_ = flagOf(bag, "Focus", true);
  setMode(numberOf(bag, "Mode", 0));
  if (flagOf(bag, "Value", false)) {
    setValue(true);
  }
  mousePointer_ = numberOf(bag, "mPointer", 0);
  setMouseIcon(textOf(bag, "mIcon"));
  setFont(textOf(bag, "Font"));
  setGradientMode(numberOf(bag, "Gradient", 0));
  readColors(bag);
  DelayDrawing(false);
}

void lvButtons_H::readColors(const PropertyBag& bag) {
  hoverColorLocks_ = 3;
  setForeColor(colorOf(bag, "cFore", systemButtonText));
  setBackColor(colorOf(bag, "cBack", systemFace));
  setGradientColor(colorOf(bag, "cGradient", systemFace));
  setHoverForeColor(colorOf(bag, "cFHover", systemButtonText));
  setHoverBackColor(colorOf(bag, "cBHover", backColor_));
  setHoverColorLocks(numberOf(bag, "LockHover", 0));
}

PropertyBag lvButtons_H::WriteProperties() const {
  return {{"BackStyle", std::to_string(buttonStyle_)},
          {"Mode", std::to_string(mode_)},
          {"Caption", caption_},
          {"CapAlign", std::to_string(captionAlign_)},
          {"CapStyle", std::to_string(captionStyle_)},
          {"CustomClick", std::to_string(customClick_)},
          {"Shape", std::to_string(buttonShape_)},
          {"Image", picture_.name},
          {"ImgAlign", std::to_string(pictureAlign_)},
          {"Enabled", flagText(enabled_)},
          {"Focus", flagText(showFocusRect_)},
          {"Value", flagText(value_)},
          {"ImgSize", std::to_string((pictureSize_ + 2) * 8)},
          {"mPointer", std::to_string(mousePointer_)},
          {"mIcon", mouseIcon_},
          {"Font", font_},
          {"cFore", colorText(foreColor_)},
          {"cBack", colorText(backColor_)},
          {"cGradient", colorText(gradientColor_)},
          {"Gradient", std::to_string(gradientMode_)},
          {"LockHover", std::to_string(hoverColorLocks_)},
          {"cFHover", colorText(hoverForeColor_)},
          {"cBHover", colorText(hoverBackColor_)}};
}

}  // namespace vantrel

#include "appearance/ColorEditor.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr Color pressedText = 0x808080;
constexpr const char* viewCaptions[] = {"RGB", "HEX", "Long"};

// A part that is too large counts as the largest.
Color partOf(const TextBox& box) {
  const int part = toInteger16(box.text.get());
  if (part < 0) {
    throw failures::overflow();
  }
  return static_cast<Color>(std::min(part, 255));
}

std::string hexadecimalPart(const TextBox& box) {
  char digits[3];
  std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(partOf(box)));
  return digits;
}

std::string byteOf(Color color, int shift) {
  return std::to_string(color >> shift & 0xFF);
}

}  // namespace

ColorEditor::ColorEditor(const ColorEditorContext& context) : c_(context), window_(context.window) {
  chooseView(0);
  listen();
}

void ColorEditor::listen() {
  onChange(window_.R, &ColorEditor::changeParts);
  onChange(window_.G, &ColorEditor::changeParts);
  onChange(window_.B, &ColorEditor::changeParts);
  onChange(window_.LongValue, &ColorEditor::changeLong);
  onChange(window_.HEXvalue, &ColorEditor::changeHex);
  const auto keep = [this](Connection connection) { connections_.push_back(std::move(connection)); };
  keep(c_.mainWindow.colorsClicked.connect([this] { open(); }));
  keep(window_.roleClicked.connect([this] { showRole(); }));
  keep(window_.pickerPressed.connect([this](Color color) { take(color); }));
  keep(window_.miniPickerPressed.connect(
      [this](int number) { take(window_.MiniPicker.at(static_cast<std::size_t>(number))); }));
  keep(window_.viewAsPressed.connect(
      [this](int number) { window_.ViewAs.at(static_cast<std::size_t>(number)).foreColor.set(pressedText); }));
  keep(window_.viewAsReleased.connect(
      [this](int number) { window_.ViewAs.at(static_cast<std::size_t>(number)).foreColor.set(colors::black); }));
  keep(window_.viewAsClicked.connect([this](int number) { chooseView(number); }));
  keep(window_.pressed.connect([this](ColorCommand command) { run(command); }));
  keep(window_.closed.connect([this] { unload(); }));
}

// A handler writes the other boxes; what that changes is no change of the user's.
void ColorEditor::onChange(TextBox& box, void (ColorEditor::*handler)()) {
  connections_.push_back(box.text.changed.connect([this, handler] {
    if (!std::exchange(writing_, true)) {
      (this->*handler)();
      writing_ = false;
    }
  }));
}

void ColorEditor::open() {
  if (window_.visible.get()) {
    window_.focusWanted.fire();
    return;
  }
  window_.lstColor.select(-1);
  window_.chkAuto.value.set(0);
  take(colors::black);
  chooseView(0);
  window_.visible.set(true);
}

void ColorEditor::unload() {
  window_.visible.set(false);
}

void ColorEditor::changeParts() {
  const SkippingSteps step;
  step([this] { window_.CurColor.set(partOf(window_.R) | partOf(window_.G) << 8 | partOf(window_.B) << 16); });
  step([this] { GetLongValue(); });
  step([this] { GetHEXValue(); });
}

void ColorEditor::changeLong() {
  const SkippingSteps step;
  step([this] { window_.CurColor.set(parseColor(window_.LongValue.text.get())); });
  step([this] { GetRGBValue(); });
  step([this] { GetHEXValue(); });
}

// What is typed here is not read: the box shows a colour and sets none.
void ColorEditor::changeHex() {
  GetLongValue();
  GetRGBValue();
}

void ColorEditor::take(Color color) {
  writing_ = true;
  const SkippingSteps step;
  window_.CurColor.set(color);
  GetLongValue();
  GetRGBValue();
  step([this] { GetHEXValue(); });
  writing_ = false;
}

void ColorEditor::GetHEXValue() {
  window_.HEXvalue.text.set(hexadecimalPart(window_.R) + hexadecimalPart(window_.G) + hexadecimalPart(window_.B));
}

void ColorEditor::GetLongValue() {
  window_.LongValue.text.set(colorText(window_.CurColor.get()));
}

void ColorEditor::GetRGBValue() {
  const Color color = window_.CurColor.get();
  window_.R.text.set(byteOf(color, 0));
  window_.G.text.set(byteOf(color, 8));
  window_.B.text.set(byteOf(color, 16));
}

// The boxes keep the numbers of the colour before.
void ColorEditor::showRole() {
  frmMain& w = c_.mainWindow;
  const Color shown[] = {w.backColor.get(), w.lblText[1].foreColor.get(), w.lblText2[1].foreColor.get(),
                         w.shpInfo[1].backColor.get(), w.shpInfo[1].borderColor.get()};
  const int role = window_.lstColor.selected();
  if (role >= 0) {
    window_.CurColor.set(shown[role]);
  }
}

void ColorEditor::chooseView(int number) {
  for (int i = 0; i < 3; ++i) {
    const std::string caption = viewCaptions[i];
    window_.ViewAs[static_cast<std::size_t>(i)].caption.set(i == number ? "[" + caption + "]" : caption);
  }
  for (TextBox* const part : {&window_.R, &window_.G, &window_.B}) {
    part->visible.set(number == 0);
  }
  window_.LongValue.visible.set(number == 2);
}

void ColorEditor::run(ColorCommand command) {
  switch (command) {
    case ColorCommand::colorize:
      return colorize();
    case ColorCommand::darkText:
      return paintTexts(colors::black);
    case ColorCommand::lightText:
      return paintTexts(colors::white);
    case ColorCommand::copyRgb:
      return copyRgb();
    case ColorCommand::copyHex:
      return c_.shell.setClipboard(window_.HEXvalue.text.get());
    case ColorCommand::copyLong:
      return c_.shell.setClipboard(window_.LongValue.text.get());
    case ColorCommand::exit:
      return unload();
  }
}

void ColorEditor::colorize() {
  const int selected = window_.lstColor.selected();
  if (selected < 0) {
    c_.notices.ShowPopMsg("Select something to colorize first!");
    return;
  }
  const auto role = static_cast<ColorRole>(selected);
  const Color color = window_.CurColor.get();
  c_.colors.paint(role, colorText(color));
  c_.colors.keep(role, color);
}

void ColorEditor::paintTexts(Color color) {
  for (std::size_t i = 1; i < c_.mainWindow.lblText.size(); ++i) {
    c_.mainWindow.lblText[i].foreColor.set(color);
  }
}

void ColorEditor::copyRgb() {
  c_.shell.setClipboard(window_.R.text.get() + ", " + window_.G.text.get() + ", " + window_.B.text.get());
}

}  // namespace vantrel

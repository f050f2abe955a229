#include "appearance/frmPopup.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/Numbers.h"
#include "core/Text.h"

namespace vantrel {
namespace {

constexpr std::pair<const char*, int> icons[] = {
    {"No Icon", 0}, {"Critical", 16}, {"Exclamation", 48}, {"Information", 64}};

int iconCode(const std::string& name) {
  const auto* const found =
      std::find_if(std::begin(icons), std::end(icons), [&name](const auto& icon) { return name == icon.first; });
  return found == std::end(icons) ? 0 : found->second;
}

void fill(ComboBox& box, std::vector<std::string> items, const char* text) {
  box.items.set(std::move(items));
  box.text.set(text);
}

}  // namespace

void frmPopup::unload() {
  Text11.text.set("");
  txtTitle.text.set("Vantrel CE");
  fill(Combo1, {icons[0].first, icons[1].first, icons[2].first, icons[3].first}, "Information");
  Check3.value.set(1);
  Check2.value.set(1);
  Text2.text.set("3");
  fill(Combo2, {"7", "8", "9", "10", "11", "12", "20", "32"}, "8");
  Text1.text.set("Tahoma");
  Option2 = {true, false};
  for (TextBox& place : Text3) {
    place.text.set("34");
  }
  Option1 = {};
  txt1.text.set("Abort");
  txt2.text.set("Retry");
  txt3.text.set("Ignore");
  fill(Combo5, {"1", "2"}, "1");
  fill(Combo4, {"Input", "Balloon"}, "");
}

void frmPopup::clearAnswers() {
  msgBack.clear();
  firstInput.clear();
  lastInput.clear();
}

PopupRequest frmPopup::request() {
  PopupRequest all;
  all.message = Text11.text.get();
  all.title = txtTitle.text.get();
  all.icon = iconCode(Combo1.text.get());
  all.closeButton = Check3.isChecked();
  all.autoCloseSeconds = Check2.value.get() * toNumber(Text2.text.get());
  all.fontSize = toNumber(Combo2.text.get());
  all.fontFace = Text1.text.get();
  all.atMouse = Option2[0];
  all.left = toInteger16(Text3[0].text.get());
  all.top = toInteger16(Text3[1].text.get());
  all.first = {Option1[1], txt1.text.get()};
  all.second = {Option1[2], txt2.text.get()};
  all.third = {Option1[3], txt3.text.get()};
  all.answers = this;
  all.textBoxes = toInteger16(Combo5.text.get());
  all.style = Combo4.text.get();
  return all;
}

void frmPopup::InputBack(const std::string& fields) {
  const std::vector<std::string> parts = split(fields, ',');
  firstInput = parts.empty() ? "" : parts.front();
  lastInput = parts.empty() ? "" : parts.back();
}

}  // namespace vantrel

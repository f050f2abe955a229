#include "core/Settings.h"

#include <cstdint>
#include <optional>

#include "core/Numbers.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr const char* gameKey = "SOFTWARE\\Microsoft\\Microsoft Games\\Halo";
constexpr const char* gamePath = "EXE Path";

// Nothing when the text is no whole number that a control can hold.
std::optional<std::int16_t> wholeNumber(const std::string& text) {
  try {
    return toInteger16(text);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

void showSwitch(Picture& picture, std::int16_t value) {
  if (value == 0 || value == 1) {
    picture.image.set(value == 1 ? "on" : "off");
  }
}

}  // namespace

Settings::Settings(frmMain& window, frmMsg& prompt, modReg& registry, Commands& commands, GameFolder& game,
                   Notices& notices)
    : window_(window), prompt_(prompt), registry_(registry), commands_(commands), game_(game) {
  writeOnChange(window.chkOptions[0], "screenshot");
  writeOnChange(window.chkOptions[1], "console");
  writeOnChange(window.chkOptions[2], "nojoystick");
  writeOnChange(window.chkOptions[3], "novideo");
  writeOnChange(window.chkOptions[5], "mIRCDDE");
  writeOnChange(window.chkSplash, "splash");
  writeOnChange(window.chkOldSplash, "oldsplash");
  writeOnChange(prompt.chkMsg, "neverautojoin");
  connections_.push_back(window.chkOptions[5].value.changed.connect([this] { announcementsChanged(); }));
  connections_.push_back(window.chkOptions[6].value.changed.connect(
      [&notices] { notices.ShowPopMsg("This feature has not been implemented."); }));
  connections_.push_back(
      window.mircChan.text.changed.connect([this] { setParameter("mIRCchannel", window_.mircChan.text.get()); }));
  connections_.push_back(
      window.cmbVid.text.changed.connect([this] { setParameter("pixelshader", window_.cmbVid.text.get()); }));
  connections_.push_back(
      window.cmbShowTab.text.changed.connect([this] { setParameter("querytab", window_.cmbShowTab.text.get()); }));
}

void Settings::writeOnChange(CheckBox& box, const std::string& name) {
  connections_.push_back(
      box.value.changed.connect([this, &box, name] { setParameter(name, std::to_string(box.value.get())); }));
}

void Settings::announcementsChanged() {
  const bool wanted = window_.chkOptions[5].isChecked();
  window_.mircChan.enabled.set(wanted);
  window_.mircChan.toolTip.set(wanted ? "" : "Enable mIRC message to type channel name!");
}

std::string Settings::parameter(const std::string& name) const {
  return registry_.GetRegValue(RegistryRoot::currentUser, parametersKey, name);
}

void Settings::setParameter(const std::string& name, const std::string& value) {
  registry_.SetRegValue(RegistryRoot::currentUser, parametersKey, name, RegistryType::text, value);
}

void Settings::LoadSettings() {
  loadAnnouncements();
  window_.txtHaloPath.text.set(registry_.GetRegValue(RegistryRoot::currentUser, settingsKey, "InitDir"));
  loadCheckBox(window_.chkOptions[1], "console");
  loadCheckBox(window_.chkOptions[0], "screenshot");
  const std::string video = parameter("pixelshader");
  window_.cmbVid.text.set(video == notFound ? std::string() : video);
  if (splash() == "1") {
    window_.chkSplash.value.set(1);
  }
  loadCheckBox(window_.chkOptions[3], "novideo");
  loadCheckBox(window_.chkOptions[2], "nojoystick");
  loadCheckBox(prompt_.chkMsg, "neverautojoin");
  loadAutoJoin();
  loadAutoRefresh();
  loadGamePath();
  const std::string tab = parameter("querytab");
  window_.cmbShowTab.text.set(tab == notFound ? "Players" : tab);
  game_.showStatus();
  openFirstPage();
  window_.cmbVid.items.set({" ", "-use11", "-use14", "-use20", "-useff"});
  window_.cmbTab.items.set({"Current Game", "Players", "Misc. Info", "Vehicles", "Settings", "About"});
  window_.cmdMenu[command::launchGame].enabled.set(window_.txtHaloPath.text.get() != notFound);
}

// A check box holds 0, 1 or 2; a number beyond those is passed over like a text that is none.
void Settings::loadCheckBox(CheckBox& box, const std::string& name) {
  const std::optional<std::int16_t> value = wholeNumber(parameter(name));
  if (value && *value >= 0 && *value <= 2) {
    box.value.set(*value);
  }
}

void Settings::loadAnnouncements() {
  window_.mircChan.text.set(parameter("mIRCchannel"));
  loadCheckBox(window_.chkOptions[5], "mIRCDDE");
  window_.mircChan.enabled.set(window_.chkOptions[5].isChecked());
}

void Settings::loadAutoJoin() {
  if (const auto value = wholeNumber(parameter("AutoJoin"))) {
    window_.cmdMenu[command::autoJoinOn].value.set(*value);
    showSwitch(window_.picJoin, *value);
  }
}

void Settings::loadAutoRefresh() {
  if (const auto value = wholeNumber(parameter("AutoRefresh"))) {
    window_.cmdMenu[command::autoRefreshOn].value.set(*value);
    showSwitch(window_.picRefresh, *value);
  } else {
    window_.cmdMenu[command::autoRefreshOff].value.set(1);
    window_.cmdMenu[command::autoRefreshOn].value.set(0);
  }
}

// The game's own key, which its installer wrote for one user or for all.
void Settings::loadGamePath() {
  for (const RegistryRoot root : {RegistryRoot::currentUser, RegistryRoot::localMachine}) {
    if (window_.txtHaloPath.text.get() == notFound) {
      window_.txtHaloPath.text.set(registry_.GetRegValue(root, gameKey, gamePath));
    }
  }
}

void Settings::openFirstPage() {
  const bool unknown = window_.txtHaloPath.text.get() == notFound;
  if (unknown) {
    window_.txtHaloPath.foreColor.set(colors::red);
  }
  commands_.cmdMenu_Click(unknown ? command::showSettings : command::showServers);
}

}  // namespace vantrel

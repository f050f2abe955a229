#include "core/GameFolder.h"

#include <optional>
#include <string_view>

#include "core/Text.h"
#include "platform/Files.h"

namespace vantrel {
namespace {

constexpr std::string_view program = "haloce.exe";

// Without every separator and program name behind it, whatever the capitals: the file is found under any.
std::string withoutProgram(std::string path) {
  const std::string tail = pathSeparator + std::string(program);
  for (std::size_t at = lowerCase(path).find(tail); at != std::string::npos; at = lowerCase(path).find(tail)) {
    path.erase(at, tail.size());
  }
  return path;
}

}  // namespace

void GameFolder::locate() {
  FileQuestion question;
  question.filter = "Gearbox Halo CE (haloce.exe)|haloce.exe";
  const std::string known = window_.txtHaloPath.text.get();
  question.folder = known == notFound ? std::string() : known;
  const std::optional<std::string> chosen = dialogs_.askFile(question);
  if (!chosen) {
    return;
  }
  window_.txtHaloPath.text.set(withoutProgram(*chosen));
  window_.cmdMenu[command::launchGame].enabled.set(true);
  registry_.SetRegValue(RegistryRoot::currentUser, settingsKey, "InitDir", RegistryType::text,
                        window_.txtHaloPath.text.get());
  showStatus();
}

void GameFolder::showStatus() {
  const std::string& path = window_.txtHaloPath.text.get();
  const bool known = !path.empty() && path != notFound;
  window_.lblExeStatus.caption.set(known ? "Set." : "Please locate Halo CE");
  window_.picExeStatus.image.set(known ? "on" : "off");
  if (known) {
    window_.txtHaloPath.foreColor.set(colors::systemText);
  }
}

}  // namespace vantrel

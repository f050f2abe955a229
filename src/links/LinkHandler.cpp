#include "links/LinkHandler.h"

#include <algorithm>
#include <optional>

#include "core/Text.h"
#include "links/modUrlEncode.h"

namespace vantrel {
namespace {

constexpr std::string_view scheme = "halo://";

// What stands behind the last mark; nothing when there is none.
std::optional<std::string> behindLast(const std::string& link, std::string_view mark) {
  const std::size_t at = link.rfind(mark);
  return at == std::string::npos ? std::nullopt : std::optional(link.substr(at + mark.size()));
}

std::string withoutScheme(const std::string& link) {
  return replaceAll(replaceAll(link, scheme, ""), "/", "");
}

}  // namespace

void LinkHandler::handleLink(std::string link) {
  std::erase(link, '"');
  if (const auto map = behindLast(link, "/map/")) {
    installMap(*map);
  } else if (const auto player = behindLast(link, "/player/")) {
    findPlayer(*player);
  } else if (link.find("/join") != std::string::npos) {
    join(link);
  } else if (const auto buddy = behindLast(link, "/buddy/")) {
    addBuddy(*buddy);
  } else {
    query(link);
  }
}

void LinkHandler::installMap(const std::string& name) {
  if (name.empty()) {
    c_.notices.ShowPopMsg("Invalid map name.");
    return;
  }
  c_.notices.ShowPopMsg("Attempting to download map " + upperCase(name));
  c_.mainWindow.visible.set(true);
  c_.showMirrors(lowerCase(name));
  c_.notices.ShowPopMsg("Vantrel CE is loading up to find this map in the mirror list.");
  c_.mirror.focusWanted.fire();
}

void LinkHandler::findPlayer(std::string name) {
  if (name.empty()) {
    c_.notices.ShowPopMsg("Invalid player name.");
    return;
  }
  c_.mainWindow.visible.set(true);
  c_.mainWindow.focusWanted.fire();
  c_.mainWindow.txtPlayer.text.set(URLDecode(name));
  c_.commands.clickIt(command::findPlayer);
  c_.notices.ShowPopMsg("Vantrel CE is loading up to search for this player online.");
  c_.players.visible.set(true);
  c_.players.focusWanted.fire();
}

void LinkHandler::join(const std::string& link) {
  const std::string address = replaceAll(withoutScheme(link), "join", "");
  c_.mainWindow.txtIP.text.set(address);
  c_.notices.ShowPopMsg("Joining Halo CE server " + address);
  c_.mainWindow.txtIP.text.set(address);
  c_.commands.clickIt(command::launchGame);
  c_.mainWindow.windowState.set(WindowState::minimized);
}

void LinkHandler::addBuddy(const std::string& name) {
  if (name.empty()) {
    c_.notices.ShowPopMsg("Invalid player name:");
    return;
  }
  c_.buddies.txtBuddy.text.set(name);
  c_.clickBuddy();
}

void LinkHandler::query(const std::string& link) {
  const std::string address = withoutScheme(link);
  if (address.empty()) {
    return;
  }
  c_.mainWindow.txtIP.text.set(address);
  c_.commands.clickIt(command::queryServer);
  if (c_.mainWindow.lblData.caption.get() != "[...]") {
    c_.notices.ShowPopMsg(c_.mainWindow.lblData.caption.get());
  }
}

}  // namespace vantrel

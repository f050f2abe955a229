#include "browser/PlayerSearch.h"

#include "core/FailureStyles.h"
#include "core/Text.h"

namespace vantrel {
namespace {

// More than anybody would read; a flood of replies ends here.
constexpr int mostHits = 10000;

}  // namespace

PlayerSearch::PlayerSearch(const Context& context) : c_(context) {
  c_.commands.add(command::findPlayer, [this] { start(); });
  connections_.push_back(c_.window.lineClicked.connect([this] { stopSilently([this] { pick(); }); }));
  connections_.push_back(c_.window.showPressed.connect([this] { stopSilently([this] { showPlayer(); }); }));
  connections_.push_back(c_.window.closed.connect([this] { c_.window.visible.set(false); }));
}

void PlayerSearch::start() {
  if (c_.mainWindow.txtPlayer.text.get().empty()) {
    return;
  }
  c_.commands.clickIt(command::getServerList);
  c_.window.visible.set(true);
  c_.window.focusWanted.fire();
  c_.window.lblSearchfor.caption.set(c_.mainWindow.txtPlayer.text.get());
}

void PlayerSearch::matchPlayer(const std::string& playerName, const std::string& address) {
  const std::string& wanted = c_.mainWindow.txtPlayer.text.get();
  if (wanted.empty() || lowerCase(playerName).find(lowerCase(wanted)) == std::string::npos) {
    return;
  }
  c_.window.visible.set(true);
  if (c_.window.lstPlayers.count() < mostHits) {
    c_.window.lstPlayers.add(playerName + "\t" + address);
  }
  c_.window.caption.set("  Vantrel CE - Player Found! ");
}

// A name with a TAB in it leads nowhere: what stands behind its first one is taken for the address.
void PlayerSearch::pick() {
  const ListBox& list = c_.window.lstPlayers;
  c_.window.cmdShow.enabled.set(list.count() > 0);
  if (list.count() == 0) {
    return;
  }
  takeServer();
  c_.commands.clickIt(command::queryServer);
}

void PlayerSearch::takeServer() {
  picked_ = c_.window.lstPlayers.line(c_.window.lstPlayers.selected());
  const std::vector<std::string> parts = split(picked_, '\t');
  if (parts.size() < 2) {
    throw failures::subscriptOutOfRange();
  }
  c_.mainWindow.txtIP.text.set(parts[1]);
}

void PlayerSearch::showPlayer() {
  const ListBox& list = c_.window.lstPlayers;
  if (list.line(list.selected()).empty()) {
    c_.notices.ShowPopMsg("No players were found.");
  }
  if (list.selected() < 0) {
    c_.dialogs.showMessage("", "Select the server to join first. Multiple players were found!");
    return;
  }
  c_.window.cmdShow.enabled.set(true);
  if (list.line(list.selected()) != picked_) {  // The keys have moved the selection away from what was clicked.
    takeServer();
  }
  c_.commands.clickIt(command::queryServer);
  c_.window.visible.set(false);
}

}  // namespace vantrel

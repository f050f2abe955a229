#include "app/Program.h"

#include <QApplication>
#include <utility>

#include "desktop/grid/ServerGridView.h"
#include "desktop/pages/HelpText.h"
#include "desktop/pages/ServerPage.h"
#include "links/modUrlEncode.h"

namespace vantrel {

Program::Program(Site site, const Version& version, const Places& places, std::string commandLine)
    : site_(std::move(site)),
      commandLine_(std::move(commandLine)),
      winePrefix_(files_, places.winePrefix),
      registry_(files_, loop_, places.configDir, &winePrefix_),
      lock_(places.configDir),
      schemes_(files_, {places.dataHome, places.configHome, places.program}),
      folder_(files_, places.appDir),
      frmMain_(loop_),
      frmSplash_(loop_),
      profiles_(files_, loop_),
      storeContext_{profiles_, loop_, notices_, folder_, site_, frmMain_, frmBuddies_, frmMirror_},
      stores_(storeContext_),
      rewrites_(storeContext_, stores_),
      modReg_(registry_),
      commands_(frmMain_, notices_),
      gameFolder_(frmMain_, modReg_, dialogs_),
      settings_(frmMain_, frmMsg_, modReg_, commands_, gameFolder_, notices_),
      pages_(frmMain_, commands_, notices_),
      inputBoxes_(frmMain_, commands_, notices_, loop_),
      favorites_({storeContext_, stores_, rewrites_, commands_, dialogs_}),
      serverList_(frmMain_, commands_, notices_, popupMenu_, loop_),
      autoSwitches_(frmMain_, commands_, settings_),
      layout_(frmMain_),
      detailView_(frmMain_, commands_, version),
      mapCheck_(frmMain_, frmMirror_, files_),
      mirrorList_({storeContext_, stores_, rewrites_, dialogs_, shell_}),
      mapInstall_({loop_, frmMain_, frmMirror_, commands_, notices_, mapCheck_, mirrorList_, mirrorPages_, dl1_,
                   unzipLibrary_, disk_, files_, folder_, site_}),
      mapPicker_({loop_, frmMirror_, frmMaps_, notices_, mapCheck_, mirrorList_, mirrorPages_, mapInstall_}),
      modPingList_(frmMain_, icmp_, loop_, notices_, progress_),
      detailQuery_({wsHaloData_, loop_, frmMain_, commands_, notices_, detailView_, modPingList_,
                    [this](const std::string& someTab) { pages_.showTab(someTab); },
                    [this](const std::string& mapFile) { mapCheck_.checkMap(mapFile); }}),
      playerSearch_({frmMain_, frmPlayers_, commands_, notices_, dialogs_}),
      buddyList_({storeContext_, stores_, rewrites_, commands_, popupMenu_}),
      playerList_(
          frmMain_, notices_, popupMenu_,
          [this](const std::string& name, const std::string& lastserver) { buddyList_.addPlayer(name, lastserver); }),
      modMirc_(frmMain_, mirc_, site_, version),
      gameWatch_(frmMain_, frmBuddies_, processes_, notices_, modMirc_),
      slotWatch_({frmMain_, frmMsg_, commands_, notices_, sound_, gameWatch_, detailQuery_, autoSwitches_}),
      gameLaunch_({wsPass_, frmMain_, frmBuddies_, commands_, notices_, files_, processes_, modMirc_, gameWatch_,
                   [this] { return slotWatch_.holdBack(); }}),
      tools_({frmMain_, frmBuddies_, commands_, notices_, files_, folder_, processes_}),
      linkHandler_({frmMain_, frmMirror_, frmPlayers_, frmBuddies_, commands_, notices_,
                    [this](const std::string& map) { mapInstall_.showFor(map); }, [this] { buddyList_.clickBuddy(); }}),
      modProtocol_({modReg_, notices_, schemes_, linkHandler_, places.program}),
      sweep_({ws2_, loop_, frmMain_, frmPlayers_, stores_, folder_, progress_}),
      exchange_({ws1_, loop_, frmMain_, frmPlayers_, sweep_, progress_, site_}),
      startAndEnd_({storeContext_, stores_, rewrites_, settings_, frmSplash_, lock_, version},
                   {.layoutPanels = [this] { layout_.layoutPanels(); },
                    .loadColors = [this] { modColors_.loadColors(); },
                    .LoadTools = [this] { tools_.LoadTools(); },
                    .prepareFavorites = {},
                    .handOverLink =
                        [this] {
                          modTray_.load();
                          modProtocol_.registerProtocolHandler(commandLine_);
                        }}),
      modTray_({tray_, frmMain_, notices_, [this] { commands_.clickIt(command::showAbout); },
                [this] { startAndEnd_.close(); }}),
      splashWindow_(frmSplash_),
      window_(frmMain_, commands_, progress_, frmMsg_),
      msgWindow_(frmMsg_, &window_),
      buddiesWindow_(frmBuddies_, &window_),
      playersWindow_(frmPlayers_, &window_),
      serverListExport_({loop_, frmMain_, commands_, dialogs_, files_, shell_, site_, version,
                         [this] { return window_.serverPage().grid().rowsInOrder(); }}),
      serverReport_({loop_, frmMain_, commands_, notices_, files_, folder_, shell_, dialogs_, site_, version,
                     [](std::string& name) { return URLEncode(name); }}),
      mirrorWindow_(frmMirror_, &window_),
      mapsWindow_(frmMaps_, &mirrorWindow_) {
  frmMain_.txtFAQ.caption.set(helpText());
  commands_.add(command::getServerList, [this] { exchange_.start(); });
  commands_.add(command::locateGame, [this] { gameFolder_.locate(); });
  frmMsg_.txtWav.text.set(openSlotSound(places.appDir));
  startAndEnd_.addWindow([this] { frmPlayers_.visible.set(false); });
  startAndEnd_.addWindow([this] { frmMsg_.visible.set(false); });
  startAndEnd_.addWindow([this] { colorEditor_.unload(); });
  startAndEnd_.addWindow([this] {
    frmMaps_.visible.set(false);
    mapInstall_.unload();
  });
  connectPlayers();
  keepColumns();
  connectEnd();
  connectNotices();
}

void Program::connectPlayers() {
  connections_.push_back(sweep_.playerSeen.connect([this](const SeenPlayer& player) {
    const std::string address = player.ip + ":" + std::to_string(player.port);
    playerSearch_.matchPlayer(player.name, address);
    buddyList_.matchPlayer(player.name, address);
  }));
  // The windows go at once; what is still to be written is, when they are gone.
  startAndEnd_.addWindow([this] {
    frmBuddies_.visible.set(false);
    if (!frmMain_.visible.get()) {
      buddyList_.saveNow();
    }
  });
}

// The columns of the server list are the view's alone; of the rest of the program only the settings know them, as a
// text.
void Program::keepColumns() {
  const std::string name = "ServerColumns";
  ServerGridView& grid = window_.serverPage().grid();
  const std::string kept = modReg_.GetRegValue(RegistryRoot::currentUser, parametersKey, name);
  grid.setColumnLayout(kept == notFound ? std::string() : kept);
  QObject::connect(&grid, &ServerGridView::columnLayoutChanged, &grid,
                   [this, &grid, name] { settings_.setParameter(name, grid.columnLayout()); });
}

// The program leaves its loops without asking its windows, which are gone by then.
void Program::connectEnd() {
  connections_.push_back(window_.closed.connect([this] { startAndEnd_.close(); }));
  connections_.push_back(startAndEnd_.ended.connect([this] {
    loop_.beginEnding();
    QApplication::exit();
  }));
  connections_.push_back(startAndEnd_.secondCopy.connect([this] {
    notices_.waitForNotice();
    loop_.beginEnding();
    QApplication::exit();
  }));
}

// The main window comes up beneath a message that is on show. At the end that is not cut off; it fades while the
// stores are written.
void Program::connectNotices() {
  connections_.push_back(frmMain_.visible.changed.connect([this] { frmPopMsg_.focusWanted.fire(); }));
  startAndEnd_.addWindow([this] { popupDisplays_.endAll(); });
  startAndEnd_.addWindow([this] { frmPopMsg_.requestUnload(); });
  startAndEnd_.addWindow([this] { modTray_.release(); });
}

void Program::run() {
  loop_.startTimer(0, TimerKind::once, [this] { start(); });
  QApplication::exec();
}

void Program::end() {
  loop_.beginEnding();
  startAndEnd_.close();
}

}  // namespace vantrel

// The whole program without its windows, in virtual time, on a network and a disk of its own. A test acts as the user
// does, presses commands and lets time pass, and looks where the user looks: in the fields, on the disk, in the log.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "appearance/ColorEditor.h"
#include "appearance/WindowLayout.h"
#include "browser/BuddyList.h"
#include "browser/Favorites.h"
#include "browser/InputBoxes.h"
#include "browser/Pages.h"
#include "browser/PlayerSearch.h"
#include "browser/ServerList.h"
#include "core/StartAndEnd.h"
#include "export/ServerListExport.h"
#include "export/ServerReport.h"
#include "export/modHTML2Text.h"
#include "join/GameLaunch.h"
#include "join/SlotWatch.h"
#include "join/Tools.h"
#include "links/LinkHandler.h"
#include "links/modProtocol.h"
#include "links/modUrlEncode.h"
#include "maps/MapCheck.h"
#include "maps/MapInstall.h"
#include "maps/MapPicker.h"
#include "query/DetailQuery.h"
#include "query/DetailView.h"
#include "query/MasterExchange.h"
#include "query/PlayerList.h"
#include "support/FakeDde.h"
#include "support/FakeDesktop.h"
#include "support/FakeFiles.h"
#include "support/FakeIcmp.h"
#include "support/FakeInet.h"
#include "support/FakeNetwork.h"
#include "support/FakeProcesses.h"
#include "support/FakeRegistry.h"
#include "support/FakeSound.h"
#include "support/FakeUnzipLibrary.h"

namespace vantrel {

// Keeps what the user was told.
struct FakeNotices : Notices {
  void ShowPopMsg(const std::string& text) override { log.push_back(text); }
  void popUpBalloon(const std::string& text, const std::string& title) override {
    log.push_back(title + (title.empty() ? "" : ": ") + text);
    if (duringBalloon) {
      duringBalloon();
    }
  }
  // What the user was told since the last call, a line each.
  std::string told() {
    std::string all;
    for (const std::string& text : std::exchange(log, {})) {
      all += (all.empty() ? "" : "\n") + text;
    }
    return all;
  }

  std::vector<std::string> log;
  std::function<void()> duringBalloon;
};

struct World {
  World() {
    files.makeFolder("/app");
    commands.add(command::getServerList, [this] { exchange.start(); });
    commands.add(command::locateGame, [this] { game.locate(); });
  }

  // The server that command 32 talks to.
  FakeServer& master() { return network.servers["master.example.test:28900"]; }
  // A reply of a game server, asked for or not, as of now.
  void reply(const std::string& bytes, const std::string& ip = "192.0.2.1", int port = 2302) {
    ws2.receive(0, {bytes, ip, port});
  }
  // The cells of a row with "|" between them.
  std::string row(int number) const {
    std::string cells;
    for (int column = 1; column <= mainWindow.grdServers.columnCount(); ++column) {
      cells += (column > 1 ? "|" : "") + mainWindow.grdServers.cellText(number, column);
    }
    return cells;
  }
  // The list's rows as the user sees them.
  std::vector<std::string> rows() const {
    std::vector<std::string> all;
    for (int number = 1; number <= mainWindow.grdServers.rowCount(); ++number) {
      all.push_back(row(number));
    }
    return all;
  }
  // The running totals: players, CTF, Slayer, other.
  std::string totals() const {
    const frmMain& window = mainWindow;
    return window.txtPlayers.text.get() + " " + window.txtCTF.text.get() + " " + window.txtSlayer.text.get() + " " +
           window.txtOther.text.get();
  }
  // The addresses that were sent a status query, in order: "192.0.2.1:2302 192.0.2.2:2302 ".
  std::string asked() const {
    std::string all;
    for (const std::string& line : network.log) {
      const std::size_t end = line.find(" > \\status");
      all += end == std::string::npos ? "" : line.substr(line.find(' ') + 1, end - line.find(' '));
    }
    return all;
  }
  // A setting as the registry holds it, "Not Found" when it does not.
  std::string setting(const std::string& name) const {
    return reg.GetRegValue(RegistryRoot::currentUser, parametersKey, name);
  }
  void storeSetting(const std::string& name, const std::string& value) {
    registry.write(RegistryRoot::currentUser, parametersKey, name, RegistryType::text, value);
  }
  void storeGamePath(const std::string& path) {
    registry.write(RegistryRoot::currentUser, settingsKey, "InitDir", RegistryType::text, path);
  }
  // Path of a file in the program's folder.
  static std::string path(const std::string& name) { return "/app/" + name; }
  std::string onDisk(const std::string& name) const { return files.bytes(path(name)); }

  VirtualLoop loop;
  FakeFiles files;
  FakeNetwork network{loop};
  FakeNotices notices;
  Site site{"master.example.test", "http://maps.example.test/maps/", "http://maps.example.test/",
            "http://www.example.test/"};
  AppFolder folder{files, "/app"};
  frmMain mainWindow{loop};
  frmPlayers players;
  frmBuddies buddies;
  frmMirror mirror;
  frmMsg prompt{loop};
  ProfileFiles profiles{files, loop};
  StoreContext context{profiles, loop, notices, folder, site, mainWindow, buddies, mirror};
  modFavesIni stores{context};
  StoreRewrites rewrites{context, stores};
  FakeTcpSocket ws1{network};
  FakeUdpSocket ws2{network};
  SweepProgress progress;
  Sweep sweep{{ws2, loop, mainWindow, players, stores, folder, progress}};
  MasterExchange exchange{{ws1, loop, mainWindow, players, sweep, progress, site}};
  FakeRegistry registry;
  FakeDialogs dialogs;
  FakeInstanceLock lock;
  Version version{1, 2, 3};
  modReg reg{registry};
  Commands commands{mainWindow, notices};
  GameFolder game{mainWindow, reg, dialogs};
  Settings settings{mainWindow, prompt, reg, commands, game, notices};
  Pages pages{mainWindow, commands, notices};
  InputBoxes boxes{mainWindow, commands, notices, loop};
  Favorites favorites{{context, stores, rewrites, commands, dialogs}};
  FakePopupMenu menu;
  ServerList serverList{mainWindow, commands, notices, menu, loop};
  AutoSwitches switches{mainWindow, commands, settings};
  WindowLayout layout{mainWindow};
  modColors colorTheme{mainWindow, reg};
  DetailView detail{mainWindow, commands, version};
  FakeUdpSocket wsHaloData{network};
  FakeIcmp icmp{network};
  MapCheck maps{mainWindow, mirror, files};
  FakeWeb web{loop};
  FakeInet I1{web};
  FakeInet inet1{web};
  FakeBinaryFiles disk{files};
  FakeConnectivity connectivity;
  FakeUnzipLibrary unzipLibrary{files};
  FakeShell shell;
  frmColors colorsWindow;
  ColorEditor colorEditor{{mainWindow, colorsWindow, colorTheme, notices, shell}};
  frmMaps picker;
  modHTML2Text reduction{loop, files};
  DownLoad dl1{{loop, I1, files, disk, dialogs, connectivity}};
  MirrorList mirrorList{{context, stores, rewrites, dialogs, shell}};
  MirrorPages mirrorPages{loop, inet1, reduction};
  MapInstall install{{loop, mainWindow, mirror, commands, notices, maps, mirrorList, mirrorPages, dl1, unzipLibrary,
                      disk, files, folder, site}};
  MapPicker mapPicker{{loop, mirror, picker, notices, maps, mirrorList, mirrorPages, install}};
  modPingList ping{mainWindow, icmp, loop, notices, progress};
  DetailQuery query{{wsHaloData, loop, mainWindow, commands, notices, detail, ping,
                     [this](const std::string& someTab) { pages.showTab(someTab); },
                     [this](const std::string& mapFile) { maps.checkMap(mapFile); }}};
  PlayerSearch search{{mainWindow, players, commands, notices, dialogs}};
  BuddyList buddyList{{context, stores, rewrites, commands, menu}};
  PlayerList playerList{mainWindow, notices, menu, [this](const std::string& name, const std::string& server) {
                          buddyList.addPlayer(name, server);
                        }};
  Connection playerSeen = sweep.playerSeen.connect([this](const SeenPlayer& player) {
    const std::string address = player.ip + ":" + std::to_string(player.port);
    search.matchPlayer(player.name, address);
    buddyList.matchPlayer(player.name, address);
  });
  FakeUdpSocket wsPass{network};
  FakeProcesses processes;
  FakeDde dde;
  FakeSound sound;
  modMirc announcer{mainWindow, dde, site, version};
  GameWatch gameWatch{mainWindow, buddies, processes, notices, announcer};
  SlotWatch slotWatch{{mainWindow, prompt, commands, notices, sound, gameWatch, query, switches}};
  GameLaunch launch{{wsPass, mainWindow, buddies, commands, notices, files, processes, announcer, gameWatch,
                     [this] { return slotWatch.holdBack(); }}};
  Tools tools{{mainWindow, buddies, commands, notices, files, folder, processes}};
  FakeSchemes schemes;
  LinkHandler links{{mainWindow, mirror, players, buddies, commands, notices,
                     [this](const std::string& map) { install.showFor(map); }, [this] { buddyList.clickBuddy(); }}};
  modProtocol protocol{{reg, notices, schemes, links, "/programs/vantrel-ce"}};
  std::vector<int> shownOrder;  // of the server list
  ServerListExport serverListExport{
      {loop, mainWindow, commands, dialogs, files, shell, site, version, [this] { return shownOrder; }}};
  ServerReport serverReport{{loop, mainWindow, commands, notices, files, folder, shell, dialogs, site, version,
                             [](std::string& name) { return URLEncode(name); }}};
  frmSplash splash{loop};
  StartContext startContext{context, stores, rewrites, settings, splash, lock, version};
};

// A reply with a name and whatever keys and values follow, like "mapname\bloodgulch".
inline std::string statusReply(const std::string& name, const std::string& rest = "") {
  return "\\hostname\\" + name + (rest.empty() ? "" : "\\" + rest);
}

// The six bytes of a master server's list for an address and port.
inline std::string listRecord(const std::string& ip, int port) {
  std::string record;
  for (const std::string& byte : split(ip, '.')) {
    record += static_cast<char>(std::stoi(byte));
  }
  return record + static_cast<char>(port / 256) + static_cast<char>(port % 256);
}

}  // namespace vantrel

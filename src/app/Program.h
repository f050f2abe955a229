// The whole program: the one object that builds the parts and wires them to each other and to the real adapters.
#pragma once

#include <string>

#include "app/Places.h"
#include "appearance/Announcements.h"
#include "appearance/ColorEditor.h"
#include "appearance/WindowLayout.h"
#include "appearance/modTray.h"
#include "browser/BuddyList.h"
#include "browser/Favorites.h"
#include "browser/InputBoxes.h"
#include "browser/Pages.h"
#include "browser/PlayerSearch.h"
#include "browser/ServerList.h"
#include "core/AppFolder.h"
#include "core/Commands.h"
#include "core/GameFolder.h"
#include "core/ProfileFiles.h"
#include "core/Settings.h"
#include "core/Site.h"
#include "core/StartAndEnd.h"
#include "core/StoreRewrites.h"
#include "core/modFavesIni.h"
#include "desktop/adapters/CanberraSound.h"
#include "desktop/adapters/CurlInet.h"
#include "desktop/adapters/DbusDde.h"
#include "desktop/adapters/DiskBinaryFiles.h"
#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/LockFile.h"
#include "desktop/adapters/NetworkState.h"
#include "desktop/adapters/PosixIcmp.h"
#include "desktop/adapters/PosixProcesses.h"
#include "desktop/adapters/PosixTcpSocket.h"
#include "desktop/adapters/PosixUdpSocket.h"
#include "desktop/adapters/QtDialogs.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/QtPopupDisplays.h"
#include "desktop/adapters/QtPopupMenu.h"
#include "desktop/adapters/QtShell.h"
#include "desktop/adapters/QtTray.h"
#include "desktop/adapters/SettingsRegistry.h"
#include "desktop/adapters/WinePrefix.h"
#include "desktop/adapters/XdgSchemes.h"
#include "desktop/adapters/ZipUnzipLibrary.h"
#include "desktop/window/BuddiesWindow.h"
#include "desktop/window/ColorsWindow.h"
#include "desktop/window/MainWindow.h"
#include "desktop/window/MapsWindow.h"
#include "desktop/window/MirrorWindow.h"
#include "desktop/window/MsgWindow.h"
#include "desktop/window/PlayersWindow.h"
#include "desktop/window/PopMsgWindow.h"
#include "desktop/window/SplashWindow.h"
#include "export/ServerListExport.h"
#include "export/ServerReport.h"
#include "export/modHTML2Text.h"
#include "join/AutoSwitches.h"
#include "join/GameLaunch.h"
#include "join/GameWatch.h"
#include "join/SlotWatch.h"
#include "join/Tools.h"
#include "join/modMirc.h"
#include "links/LinkHandler.h"
#include "links/modProtocol.h"
#include "maps/MapCheck.h"
#include "maps/MapInstall.h"
#include "maps/MapPicker.h"
#include "query/DetailQuery.h"
#include "query/DetailView.h"
#include "query/MasterExchange.h"
#include "query/PlayerList.h"
#include "query/Sweep.h"
#include "query/modPingList.h"

namespace vantrel {

class Program {
 public:
  // REQUIRES: a QApplication, which outlives the program and does not quit with its last window.
  // `commandLine`: what it was started with, behind its name.
  Program(Site site, const Version& version, const Places& places, std::string commandLine = {});

  MainWindow& window() { return window_; }
  frmMain& model() { return frmMain_; }
  frmBuddies& buddies() { return frmBuddies_; }
  frmPlayers& players() { return frmPlayers_; }
  frmMirror& mirror() { return frmMirror_; }
  frmColors& colors() { return frmColors_; }
  DownLoad& download() { return dl1_; }
  Commands& commands() { return commands_; }
  SweepProgress& progress() { return progress_; }
  Sweep& sweep() { return sweep_; }
  QtLoop& loop() { return loop_; }
  modReg& registry() { return modReg_; }

  // Comes up, or finds that another copy runs. It returns with the splash or the main window on the screen, or neither.
  void start() { startAndEnd_.start(); }
  // Comes up and returns when the program has ended.
  void run();
  // Ends the program in order but in haste: waits are cut short, and `run` returns once every handler has.
  void end();

 private:
  void connectPlayers();
  void keepColumns();
  void connectEnd();
  void connectNotices();

  Site site_;
  std::string commandLine_;
  QtLoop loop_;
  DiskFiles files_;
  QtDialogs dialogs_{loop_};
  QtPopupMenu popupMenu_{loop_};
  WinePrefix winePrefix_;
  SettingsRegistry registry_;
  frmPopMsg frmPopMsg_{loop_, registry_};
  PopMsgWindow popMsgWindow_{frmPopMsg_};
  frmPopup frmPopup_;
  QtPopupDisplays popupDisplays_;
  Announcements notices_{{loop_, frmPopMsg_, frmPopup_, popupDisplays_, dialogs_}};
  QtTray tray_;
  LockFile lock_;
  PosixTcpSocket ws1_{loop_.nesting()};
  PosixUdpSocket ws2_{loop_.nesting()};
  PosixUdpSocket wsHaloData_{loop_.nesting()};
  PosixUdpSocket wsPass_{loop_.nesting()};
  PosixIcmp icmp_{loop_};
  PosixProcesses processes_;
  DbusDde mirc_;
  CanberraSound sound_{loop_};
  QtShell shell_;
  CurlInet downloads_{loop_};
  CurlInet indexes_{loop_};
  DiskBinaryFiles disk_;
  NetworkState network_;
  ZipUnzipLibrary unzipLibrary_{loop_};
  XdgSchemes schemes_;
  AppFolder folder_;
  frmMain frmMain_;
  frmSplash frmSplash_;
  frmBuddies frmBuddies_;
  frmPlayers frmPlayers_;
  frmMirror frmMirror_;
  frmMaps frmMaps_;
  frmMsg frmMsg_{loop_};
  frmColors frmColors_;
  ProfileFiles profiles_;
  StoreContext storeContext_;
  modFavesIni stores_;
  StoreRewrites rewrites_;
  modReg modReg_;
  Commands commands_;
  GameFolder gameFolder_;
  Settings settings_;
  Pages pages_;
  InputBoxes inputBoxes_;
  Favorites favorites_;
  ServerList serverList_;
  AutoSwitches autoSwitches_;
  WindowLayout layout_;
  modColors modColors_{frmMain_, modReg_};
  ColorEditor colorEditor_{{frmMain_, frmColors_, modColors_, notices_, shell_}};
  DetailView detailView_;
  SweepProgress progress_;
  MapCheck mapCheck_;
  modHTML2Text modHTML2Text_{loop_, files_};
  DownLoad dl1_{{loop_, downloads_, files_, disk_, dialogs_, network_}};
  MirrorList mirrorList_;
  MirrorPages mirrorPages_{loop_, indexes_, modHTML2Text_};
  MapInstall mapInstall_;
  MapPicker mapPicker_;
  modPingList modPingList_;
  DetailQuery detailQuery_;
  PlayerSearch playerSearch_;
  BuddyList buddyList_;
  PlayerList playerList_;
  modMirc modMirc_;
  GameWatch gameWatch_;
  SlotWatch slotWatch_;
  GameLaunch gameLaunch_;
  Tools tools_;
  LinkHandler linkHandler_;
  modProtocol modProtocol_;
  Sweep sweep_;
  MasterExchange exchange_;
  StartAndEnd startAndEnd_;
  modTray modTray_;
  SplashWindow splashWindow_;
  MainWindow window_;
  MsgWindow msgWindow_;
  BuddiesWindow buddiesWindow_;
  PlayersWindow playersWindow_;
  ServerListExport serverListExport_;
  ServerReport serverReport_;
  MirrorWindow mirrorWindow_;
  MapsWindow mapsWindow_;
  ColorsWindow colorsWindow_{frmColors_, &window_};
  std::vector<Connection> connections_;
};

}  // namespace vantrel

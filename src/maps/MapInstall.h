// The way of a missing map into the game's folder: a mirror is chosen, its index searched, the map's archive
// downloaded into a folder of the program and unpacked among the game's maps.
//
// Every step may wait, and the user may do anything meanwhile. What he begins anew, or closes, ends what waits: each
// attempt has a number, and one that is not the latest any more stops without a word.
#pragma once

#include <string>
#include <vector>

#include "core/AppFolder.h"
#include "core/Commands.h"
#include "core/MirrorWindows.h"
#include "core/Site.h"
#include "core/frmMain.h"
#include "maps/DownLoad.h"
#include "maps/MapCheck.h"
#include "maps/MirrorList.h"
#include "maps/MirrorPages.h"
#include "platform/BinaryFiles.h"
#include "platform/UnzipLibrary.h"

namespace vantrel {

class MapInstall {
 public:
  // What the installation works on; all of it must outlive it.
  struct Context {
    Loop& loop;
    frmMain& mainWindow;
    frmMirror& window;
    Commands& commands;
    Notices& notices;
    MapCheck& check;
    MirrorList& mirrors;
    MirrorPages& pages;
    DownLoad& dl1;
    UnzipLibrary& library;
    BinaryFiles& disk;
    const Files& files;
    const AppFolder& folder;
    const Site& site;
  };

  // Adds command 41, which opens the window.
  explicit MapInstall(const Context& context);
  MapInstall(const MapInstall&) = delete;
  MapInstall& operator=(const MapInstall&) = delete;
  ~MapInstall();

  // Opens the window for a map that is named elsewhere; the user picks a mirror.
  void showFor(const std::string& map);
  // Starts the download of the wanted map from the selected mirror.
  void downloadMap();

  // Ends whatever waits for a mirror's index, and begins an attempt of another kind; its number goes to `isLatest`.
  int beginAttempt();
  bool isLatest(int attempt) const { return attempt == attempt_ && !c_.loop.ending(); }

  // Closes the window; a download under way is cancelled.
  void unload();

 private:
  void show();
  void open();
  void load();
  void press(MirrorCommand command);
  void select();
  void findMap(const std::string& someMap, const std::string& infoSite, int attempt);
  void askAndDownload(const std::string& map, int attempt);
  void tellNotFound(int attempt);
  void complete();
  std::string unzipMap();
  void someZip_Progress(std::int32_t lCount, const std::string& sMsg);
  std::string outcome(const std::string& problem) const;
  std::string mapsFolder() const;
  void cancel();
  void tellCache();
  void Info(const std::string& someInfo);
  void showProgress();

  std::string mapUrl(const std::string& map) const;
  std::string zipPath(const std::string& map) const;
  std::string mapOnShow() const { return c_.mainWindow.lblText[6].caption.get() + ".map"; }

  Context c_;
  frmMirror& window_;
  int attempt_ = 0;
  bool loaded_ = false;      // the window is open
  bool completing_ = false;  // an archive is being unpacked
  bool headIsLost_ = false;  // the server's last answer had none that could be read
  std::int32_t percent_ = 0;
  std::string wanted_;  // the map that is being downloaded
  TimerId later_ = 0;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

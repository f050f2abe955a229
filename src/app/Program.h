// The whole program: the one object that builds the parts and wires them to each other and to the real adapters.
#pragma once

#include <string>

#include "core/AppFolder.h"
#include "core/Commands.h"
#include "core/ProfileFiles.h"
#include "core/Site.h"
#include "core/StoreRewrites.h"
#include "core/modFavesIni.h"
#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/PosixTcpSocket.h"
#include "desktop/adapters/PosixUdpSocket.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/QtNotices.h"
#include "desktop/window/MainWindow.h"
#include "query/MasterExchange.h"
#include "query/Sweep.h"

namespace vantrel {

class Program {
 public:
  // `appDir`: the folder of the stores, which exists. REQUIRES: a QApplication, which outlives the program.
  Program(Site site, const std::string& appDir);

  MainWindow& window() { return window_; }
  frmMain& model() { return frmMain_; }
  SweepProgress& progress() { return progress_; }
  Sweep& sweep() { return sweep_; }
  QtLoop& loop() { return loop_; }

  // Shows the window and returns when the program has ended.
  void run();
  // Ends the program in order: waits are cut short, and `run` returns once every handler has.
  void end();

 private:
  Site site_;
  QtLoop loop_;
  DiskFiles files_;
  QtNotices notices_{loop_};
  PosixTcpSocket ws1_{loop_.nesting()};
  PosixUdpSocket ws2_{loop_.nesting()};
  AppFolder folder_;
  frmMain frmMain_;
  frmBuddies frmBuddies_;
  frmPlayers frmPlayers_;
  frmMirror frmMirror_;
  ProfileFiles profiles_;
  StoreContext storeContext_;
  modFavesIni stores_;
  Commands commands_;
  SweepProgress progress_;
  Sweep sweep_;
  MasterExchange exchange_;
  MainWindow window_;
  Connection closed_;
};

}  // namespace vantrel

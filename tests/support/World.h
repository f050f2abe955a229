// The whole program without its windows, in virtual time, on a network and a disk of its own. A test acts as the user
// does, presses commands and lets time pass, and looks where the user looks: in the fields, on the disk, in the log.
#pragma once

#include <string>
#include <vector>

#include "core/AppFolder.h"
#include "core/Commands.h"
#include "core/ProfileFiles.h"
#include "core/SideWindows.h"
#include "core/Site.h"
#include "core/StoreRewrites.h"
#include "core/frmMain.h"
#include "core/modFavesIni.h"
#include "query/MasterExchange.h"
#include "query/Sweep.h"
#include "support/FakeFiles.h"
#include "support/FakeNetwork.h"
#include "support/FakeNotices.h"
#include "support/VirtualLoop.h"

namespace vantrel {

struct World {
  World();

  // The server that command 32 talks to.
  FakeServer& master() { return network.servers["master.example.test:28900"]; }
  // A reply of a game server, asked for or not, as of now.
  void reply(const std::string& bytes, const std::string& ip = "192.0.2.1", int port = 2302);
  // The cells of a row with "|" between them.
  std::string row(int number) const;
  // The list's rows as the user sees them, hidden ones included.
  std::vector<std::string> rows() const;
  // The running totals: players, CTF, Slayer, other.
  std::string totals() const;
  // The addresses that were sent a status query, in order: "192.0.2.1:2302 192.0.2.2:2302 ".
  std::string asked() const;
  // Path of a file in the program's folder.
  static std::string path(const std::string& name) { return "/app/" + name; }
  std::string onDisk(const std::string& name) const { return files.bytes(path(name)); }

  VirtualLoop loop;
  FakeFiles files;
  FakeNetwork network{loop};
  FakeNotices notices{loop};
  Site site{"master.example.test", "http://maps.example.test/maps/", "http://maps.example.test/"};
  AppFolder folder{files, "/app"};
  frmMain mainWindow{loop};
  frmPlayers players;
  frmBuddies buddies;
  frmMirror mirror;
  ProfileFiles profiles{files, loop};
  StoreContext context{profiles, loop, notices, folder, site, mainWindow, buddies, mirror};
  modFavesIni stores{context};
  StoreRewrites rewrites{context, stores};
  FakeTcpSocket ws1{network};
  FakeUdpSocket ws2{network};
  SweepProgress progress;
  Sweep sweep{{ws2, loop, mainWindow, players, stores, folder, progress}};
  MasterExchange exchange{{ws1, loop, mainWindow, players, sweep, progress, site}};
  Commands commands{notices};
};

// A reply with a name and whatever keys and values follow, like "mapname\bloodgulch".
std::string statusReply(const std::string& name, const std::string& rest = "");

// The six bytes of a master server's list for an address and port.
std::string listRecord(const std::string& ip, int port);

}  // namespace vantrel

// "Launch": a query of the server that is to be joined, and, when its reply has come, the start of the game on it.
//
// One launch starts at most one game: the first datagram behind it counts, from wherever it comes, and one that comes
// unasked is left alone.
#pragma once

#include <functional>
#include <string>

#include "core/Commands.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "join/GameWatch.h"
#include "join/modMirc.h"
#include "platform/Files.h"
#include "platform/Sockets.h"
#include "query/StatusReply.h"

namespace vantrel {

class GameLaunch {
 public:
  // All of it must outlive the launch.
  struct Context {
    UdpSocket& wsPass;
    frmMain& mainWindow;
    frmBuddies& buddies;
    Commands& commands;
    Notices& notices;
    const Files& files;
    Processes& processes;
    modMirc& announcer;
    GameWatch& watch;
    std::function<bool()> holdBack;  // true when the user is asked something first, and the launch is off for now
  };

  // Adds command 18, "Launch", and takes the socket's arrivals and errors.
  explicit GameLaunch(const Context& context);
  GameLaunch(const GameLaunch&) = delete;
  GameLaunch& operator=(const GameLaunch&) = delete;
  ~GameLaunch();

 private:
  void addCommand();
  void JoinCheck();
  void arrive(const Datagram& datagram);
  void handleError(const Failure& failure, const std::string& ip, int port);
  void minimizeBuddies();
  // Without a datagram the server has refused, and nothing is known of it.
  void launch(const Datagram* datagram);
  std::string storedPassword(const StatusReply& reply) const;
  void announce(const Datagram& datagram, const StatusReply& reply);
  std::string commandLine(const std::string& passArg) const;
  void startGame(const std::string& passArg);

  Context c_;
  bool checking_ = false;  // a check was sent, and nothing has come back yet
  std::string checkedIp_;
  int checkedPort_ = 0;
};

}  // namespace vantrel

// The sweep: one status query to each address that it is given, and one row of the server list for each reply.
//
// Nothing waits for a reply. Each is handled when it arrives, from whichever server it came, and the handler lets other
// events in while it writes the row: replies are handled inside one another.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/FailureStyles.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "core/modFavesIni.h"
#include "platform/Loop.h"
#include "platform/Sockets.h"
#include "query/StatusReply.h"
#include "query/SweepProgress.h"

namespace vantrel {

// A player's name in a reply, and the server that sent it.
struct SeenPlayer {
  std::string name;
  std::string ip;
  int port = 0;
};

class Sweep {
 public:
  struct Context {
    UdpSocket& ws2;
    Loop& loop;
    frmMain& mainWindow;
    frmPlayers& players;
    modFavesIni& stores;
    const AppFolder& folder;
    SweepProgress& progress;
  };

  // Takes the socket's arrivals. Everything in `context` must outlive the sweep.
  explicit Sweep(const Context& context);
  Sweep(const Sweep&) = delete;
  Sweep& operator=(const Sweep&) = delete;
  ~Sweep();

  // Sends one status query. Throws the socket's failure when it cannot be sent.
  void QueryServer(const std::string& ip, int port);

  Signal<const SeenPlayer&> playerSeen;  // for each player of each reply
  Signal<int> rowAdded;                  // row; it is complete, and written to the server cache

 private:
  struct Reply;
  enum class RowFate { shown, gone };  // gone: the list was emptied while the row was being written

  void handleReply(const Datagram& datagram);
  std::string takeBytes(const Datagram& datagram);
  void gather(Reply& reply, const SkippingSteps& step);
  void gatherElement(Reply& reply, int i, const SkippingSteps& step);
  void showCount(const Reply& reply);
  void showSearch(const Reply& reply);
  RowFate showRow(Reply& reply);
  void writeCache(const Reply& reply);

  Context c_;
  std::size_t oversizedBytes_ = 0;         // of the replies that this list has taken whole though they were too long
  std::uint32_t oversizedGeneration_ = 0;  // of the list that they went to
  TimerId rest_ = 0;                       // to the moment when the search's status says that there is no sweep
};

}  // namespace vantrel

// The conversation with the master server: its challenge is answered, and every address of the list that comes back is
// queried at once, 10 ms apart. Replies are handled in those pauses, so rows appear while the list is being walked.
#pragma once

#include <cstdint>
#include <string>

#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "platform/Sockets.h"
#include "query/MasterListReader.h"
#include "query/Sweep.h"

namespace vantrel {

class MasterExchange {
 public:
  static constexpr int port = 28900;

  struct Context {
    TcpSocket& ws1;
    Loop& loop;
    frmMain& mainWindow;
    frmPlayers& players;
    Sweep& sweep;
    SweepProgress& progress;
    const Site& site;
  };

  // Takes the socket's arrivals. Everything in `context` must outlive the exchange.
  explicit MasterExchange(const Context& context);
  MasterExchange(const MasterExchange&) = delete;
  MasterExchange& operator=(const MasterExchange&) = delete;
  ~MasterExchange();

  // Empties the server list and begins a conversation, in place of one that is under way. Nothing is reported of a
  // master server that cannot be reached, does not answer or drops the connection.
  void start();

 private:
  void handleArrival(const std::string& bytes);
  void answer(const std::string& greeting);
  void walk(const std::vector<ServerAddress>& addresses);

  Context c_;
  MasterListReader reader_;
  std::string greetingStart_;   // the first bytes of a conversation while they may yet become a greeting
  std::uint32_t exchange_ = 0;  // grows with each start
  int walks_ = 0;               // under way, one inside the other
};

}  // namespace vantrel

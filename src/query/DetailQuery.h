// The query of the current server and what its reply fills: the lists of the detail pages, the game summary and the
// window's title.
//
// Every datagram that arrives is a whole reply, whenever and from wherever it comes: nothing pairs it with a query, and
// its rows are added behind those that are there. A reply is handled up to its first fault.
#pragma once

#include <functional>
#include <string>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "platform/Notices.h"
#include "platform/Sockets.h"
#include "query/DetailView.h"
#include "query/modPingList.h"

namespace vantrel {

// How many players a server has and can have, as its reply tells it.
struct ServerLoad {
  std::string ip;  // where the reply came from; empty before the first one
  int port = 0;
  double players = 0;
  double maxPlayers = 0;

  bool isFull() const { return players >= maxPlayers; }
};

class DetailQuery {
 public:
  // All of it must outlive the query.
  struct Context {
    UdpSocket& wsHaloData;
    Loop& loop;
    frmMain& mainWindow;
    Commands& commands;
    Notices& notices;
    DetailView& view;
    modPingList& ping;
    std::function<void(const std::string& someTab)> showTab;   // opens the detail page of that name
    std::function<void(const std::string& mapFile)> checkMap;  // looks whether the map of the reply is there
  };

  // Adds command 12, "Query", and takes the socket's arrivals and errors.
  explicit DetailQuery(const Context& context);
  DetailQuery(const DetailQuery&) = delete;
  DetailQuery& operator=(const DetailQuery&) = delete;
  ~DetailQuery();

  // A reply was handled to its end; all that it changes is on show. A listener may wait.
  Signal<const ServerLoad&> replied;

 private:
  void addCommand();
  void beginView();
  void send();
  void handle(const Datagram& datagram);
  std::string_view takeBytes(const Datagram& datagram);
  void handleError(const Failure& failure);
  bool canBeAsked() const;

  Context c_;
  std::size_t taken_ = 0;  // bytes of the replies since the view was cleared
};

}  // namespace vantrel

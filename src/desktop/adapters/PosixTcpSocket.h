// A TCP client socket of the operating system. Host names are looked up without holding the event loop.
#pragma once

#include <QHostAddress>
#include <QObject>
#include <deque>
#include <memory>

#include "desktop/adapters/ArrivalNesting.h"
#include "desktop/adapters/PosixReader.h"
#include "platform/Sockets.h"

class QSocketNotifier;

namespace vantrel {

class PosixTcpSocket : public QObject, public TcpSocket {
 public:
  // `nesting` must outlive the socket.
  explicit PosixTcpSocket(ArrivalNesting& nesting);
  ~PosixTcpSocket() override;

  void connect(const std::string& host, int port) override;
  void close() override;
  SocketState state() const override { return state_; }
  void send(const std::string& bytes) override;
  void onArrival(std::function<void(const std::string& bytes)> handler) override { arrival_ = std::move(handler); }
  void onEnded(std::function<void()> handler) override { ended_ = std::move(handler); }

 private:
  void tryAddressesOf(int attempt);
  void tryNextAddress();
  bool beginConnecting(const QHostAddress& address);
  void writable();
  void finishConnecting();
  void read();
  void dropDescriptor();
  void end(SocketState state);

  ArrivalNesting::Gate gate_;
  SocketState state_ = SocketState::closed;
  int descriptor_ = -1;
  int port_ = 0;
  int attempt_ = 0;                     // grows with each connect and close
  std::deque<QHostAddress> addresses_;  // not yet tried
  std::string outgoing_;                // not yet taken by the system
  std::unique_ptr<PosixReader> reader_;
  QSocketNotifier* writer_ = nullptr;  // deleted from the event loop, as it may be in its own signal
  std::function<void(const std::string& bytes)> arrival_;
  std::function<void()> ended_;
};

}  // namespace vantrel

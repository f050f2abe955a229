// A UDP socket of the operating system, for IPv4.
#pragma once

#include <memory>
#include <optional>

#include "desktop/adapters/ArrivalNesting.h"
#include "desktop/adapters/PosixReader.h"
#include "platform/Sockets.h"

namespace vantrel {

class PosixUdpSocket : public UdpSocket {
 public:
  // `nesting` must outlive the socket.
  explicit PosixUdpSocket(ArrivalNesting& nesting);
  ~PosixUdpSocket() override;

  void send(const std::string& ip, int port, const std::string& bytes) override;
  void onArrival(std::function<void(const Datagram&)> handler) override { arrival_ = std::move(handler); }
  void onError(std::function<void(const Failure&, const std::string& ip, int port)> handler) override {
    error_ = std::move(handler);
  }
  void close() override;

  // 0 before the first send.
  int localPort() const;

 private:
  struct Refusal {
    std::string ip;
    int port;
  };

  void open();
  void read();
  std::optional<Refusal> takeRefusal() const;
  std::optional<Datagram> takeDatagram() const;

  ArrivalNesting::Gate gate_;
  int descriptor_ = -1;
  std::unique_ptr<PosixReader> reader_;
  std::function<void(const Datagram&)> arrival_;
  std::function<void(const Failure&, const std::string& ip, int port)> error_;
};

}  // namespace vantrel

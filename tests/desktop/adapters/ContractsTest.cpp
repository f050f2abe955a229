// The real adapters keep the contracts that the fakes keep.

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <fstream>
#include <map>
#include <memory>

#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/PosixTcpSocket.h"
#include "desktop/adapters/PosixUdpSocket.h"
#include "desktop/adapters/QtLoop.h"
#include "support/FilesContract.h"
#include "support/LoopContract.h"
#include "support/TcpSocketContract.h"
#include "support/UdpSocketContract.h"

namespace vantrel {
namespace {

struct RealLoop {
  Loop& loop() { return loop_; }
  void beginEnding() { loop_.beginEnding(); }
  QtLoop loop_;
};

QByteArray bytesOf(const std::string& text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}

struct RealUdp : RealLoop {
  UdpSocket& socket() { return socket_; }
  std::string ip() const { return "127.0.0.1"; }
  int openPeer(const std::vector<std::string>& answers) {
    auto peer = std::make_unique<QUdpSocket>();
    peer->bind(QHostAddress::LocalHost, 0);
    QUdpSocket* const raw = peer.get();
    QObject::connect(raw, &QUdpSocket::readyRead, [this, raw, answers] {
      while (raw->hasPendingDatagrams()) {
        QHostAddress from;
        quint16 port = 0;
        QByteArray bytes(static_cast<qsizetype>(raw->pendingDatagramSize()), '\0');
        raw->readDatagram(bytes.data(), bytes.size(), &from, &port);
        received_[raw->localPort()].push_back(bytes.toStdString());
        for (const std::string& answer : answers) {
          raw->writeDatagram(bytesOf(answer), from, port);
        }
      }
    });
    peers_.push_back(std::move(peer));
    return raw->localPort();
  }
  std::vector<std::string> received(int port) { return received_[port]; }
  int refusingPort() {
    QUdpSocket free;
    free.bind(QHostAddress::LocalHost, 0);
    return free.localPort();
  }

  PosixUdpSocket socket_{loop_.nesting()};
  std::map<int, std::vector<std::string>> received_;
  std::vector<std::unique_ptr<QUdpSocket>> peers_;
};

struct RealTcp : RealLoop {
  TcpSocket& socket() { return socket_; }
  std::string host() const { return "localhost"; }
  int openPeer(const std::string& greeting) {
    QObject::connect(&server_, &QTcpServer::newConnection, [this, greeting] {
      last_ = server_.nextPendingConnection();
      QObject::connect(last_, &QTcpSocket::readyRead,
                       [this, peer = last_] { received_ += peer->readAll().toStdString(); });
      last_->write(bytesOf(greeting));
    });
    server_.listen(QHostAddress::LocalHost, 0);
    return server_.serverPort();
  }
  int refusingPort() {
    QTcpServer free;
    free.listen(QHostAddress::LocalHost, 0);
    return free.serverPort();
  }
  std::string received() const { return received_; }
  void peerSends(const std::string& bytes) { last_->write(bytesOf(bytes)); }
  void peerEnds() { last_->disconnectFromHost(); }

  QTcpServer server_;
  QTcpSocket* last_ = nullptr;
  std::string received_;
  PosixTcpSocket socket_{loop_.nesting()};
};

struct RealFiles {
  Files& files() { return files_; }
  std::string folder() const { return folder_.path().toStdString(); }
  void makeFolder(const std::string& path) { QDir().mkdir(QString::fromStdString(path)); }
  void changeOutside(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  }

  DiskFiles files_;
  QTemporaryDir folder_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, LoopContract, RealLoop);
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, UdpSocketContract, RealUdp);
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, TcpSocketContract, RealTcp);
INSTANTIATE_TYPED_TEST_SUITE_P(Disk, FilesContract, RealFiles);

}  // namespace
}  // namespace vantrel

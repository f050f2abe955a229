// What every TcpSocket promises, told against a harness with these members:
//   Loop& loop();
//   TcpSocket& socket();      closed
//   std::string host();       name or dotted address of the peer
//   int openPeer(greeting);   port of a peer that accepts connections one after the other, and sends `greeting` to each
//   int refusingPort();       a port of `host` where nobody listens
//   std::string received();   all bytes that the peer has got, over all connections
//   void peerSends(bytes);    on the connection that it accepted last
//   void peerEnds();          likewise, without an error
#pragma once

#include <string>

#include "platform/Sockets.h"
#include "support/FilesContract.h"
#include "support/LoopContract.h"

namespace vantrel {

template <class Harness>
struct TcpSocketContract : testing::Test {
  TcpSocketContract() {
    socket.onArrival([this](const std::string& bytes) {
      EXPECT_GE(bytes.size(), 1u);
      EXPECT_LE(bytes.size(), 65536u);
      arrived += bytes;
    });
    socket.onEnded([this] { ++ended; });
  }
  void connectTo(int port) {
    socket.connect(harness.host(), port);
    waitUntil(loop, [this] { return socket.state() == SocketState::connected; });
  }
  int sendFailure() {
    return failureOf([this] { socket.send("?"); });
  }

  Harness harness;
  Loop& loop = harness.loop();
  TcpSocket& socket = harness.socket();
  std::string arrived;
  int ended = 0;
};
TYPED_TEST_SUITE_P(TcpSocketContract);

TYPED_TEST_P(TcpSocketContract, a_connection_comes_about_later_and_carries_all_bytes_in_order_both_ways) {
  std::string large;
  for (int i = 0; i < 50000; ++i) {
    large += std::to_string(i);
  }
  this->socket.connect(this->harness.host(), this->harness.openPeer("hello "));
  EXPECT_NE(this->socket.state(), SocketState::connected);
  waitUntil(this->loop, [this] { return this->arrived == "hello "; });
  this->socket.send(large);
  this->socket.send("end");
  waitUntil(this->loop, [&] { return this->harness.received() == large + "end"; });
  this->harness.peerSends(large);
  EXPECT_EQ(this->arrived, "hello ");
  waitUntil(this->loop, [&] { return this->arrived == "hello " + large; });
}

TYPED_TEST_P(TcpSocketContract, the_remote_end_is_told_once_after_the_last_bytes) {
  this->connectTo(this->harness.openPeer(""));
  this->harness.peerSends("last");
  this->harness.peerEnds();
  waitUntil(this->loop, [this] { return this->ended == 1; });
  EXPECT_EQ(this->arrived, "last");
  EXPECT_NE(this->socket.state(), SocketState::connected);
  EXPECT_EQ(this->sendFailure(), 10054);
  this->loop.wait(30);
  EXPECT_EQ(this->ended, 1);
}

TYPED_TEST_P(TcpSocketContract, a_refused_connection_is_an_error_and_can_be_tried_again) {
  this->socket.connect(this->harness.host(), this->harness.refusingPort());
  EXPECT_EQ(this->ended, 0);
  waitUntil(this->loop, [this] { return this->ended == 1; });
  EXPECT_EQ(this->socket.state(), SocketState::error);
  EXPECT_EQ(this->sendFailure(), 10054);
  this->connectTo(this->harness.openPeer(""));
}

TYPED_TEST_P(TcpSocketContract, close_forgets_the_connection_and_calls_nobody) {
  const int port = this->harness.openPeer("");
  this->connectTo(port);
  this->harness.peerSends("lost");
  this->socket.close();
  this->loop.wait(30);
  this->socket.connect(this->harness.host(), port);
  this->socket.close();
  this->loop.wait(30);
  EXPECT_EQ(this->arrived, "");
  EXPECT_EQ(this->ended, 0);
  EXPECT_EQ(this->socket.state(), SocketState::closed);
  this->connectTo(port);
}

TYPED_TEST_P(TcpSocketContract, a_handler_that_waits_is_entered_by_the_next_bytes_and_may_close_there) {
  this->connectTo(this->harness.openPeer(""));
  std::string story;
  this->socket.onArrival([&](const std::string& bytes) {
    story += bytes + "<";
    if (bytes == "one") {
      this->harness.peerSends("two");
      waitUntil(this->loop, [&] { return story.size() > 5; });
    } else {
      this->harness.peerSends("three");
      this->socket.close();
    }
    story += ">";
  });
  this->harness.peerSends("one");
  waitUntil(this->loop, [&] { return story.ends_with(">>"); });
  this->loop.wait(30);
  EXPECT_EQ(story, "one<two<>>");
}

REGISTER_TYPED_TEST_SUITE_P(TcpSocketContract, a_connection_comes_about_later_and_carries_all_bytes_in_order_both_ways,
                            the_remote_end_is_told_once_after_the_last_bytes,
                            a_refused_connection_is_an_error_and_can_be_tried_again,
                            close_forgets_the_connection_and_calls_nobody,
                            a_handler_that_waits_is_entered_by_the_next_bytes_and_may_close_there);

}  // namespace vantrel

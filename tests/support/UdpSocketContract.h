// What every UdpSocket promises, told against a harness with these members:
//   Loop& loop();
//   UdpSocket& socket();      nothing was sent on it yet
//   std::string ip();         the dotted address that the ports below are on
//   int openPeer(answers);    port of a new peer that sends all of `answers` (std::vector<std::string>) to each
//   datagram std::vector<std::string> received(int port);  what that peer has got so far int refusingPort();       a
//   port of `ip` where nobody listens
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Sockets.h"
#include "support/LoopContract.h"

namespace vantrel {

template <class Harness>
struct UdpSocketContract : testing::Test {
  Harness harness;
  Loop& loop = harness.loop();
  UdpSocket& socket = harness.socket();
  std::vector<std::string> arrived;
  // How often `line` is among what arrived.
  long count(const std::string& line) { return std::count(arrived.begin(), arrived.end(), line); }
};
TYPED_TEST_SUITE_P(UdpSocketContract);

TYPED_TEST_P(UdpSocketContract, answers_arrive_whole_from_the_loop_with_their_senders_address) {
  const std::string odd("\0\xFF\\", 3);
  const int first = this->harness.openPeer({odd, ""});
  const int second = this->harness.openPeer({"two"});
  this->socket.onArrival([this](const Datagram& datagram) {
    this->arrived.push_back(datagram.ip + ":" + std::to_string(datagram.port) + " " + datagram.bytes);
  });
  this->socket.send(this->harness.ip(), first, "\\status");
  this->socket.send(this->harness.ip(), second, "\\");
  EXPECT_TRUE(this->arrived.empty());
  waitUntil(this->loop, [this] { return this->arrived.size() == 3; });
  const std::string from = this->harness.ip() + ":" + std::to_string(first) + " ";
  EXPECT_EQ(this->count(from + odd), 1);
  EXPECT_EQ(this->count(from), 1);
  EXPECT_EQ(this->count(this->harness.ip() + ":" + std::to_string(second) + " two"), 1);
  EXPECT_EQ(this->harness.received(first), std::vector<std::string>{"\\status"});
}

TYPED_TEST_P(UdpSocketContract, a_handler_that_waits_is_entered_again_at_most_64_deep_and_nothing_is_lost) {
  constexpr std::size_t count = 80;
  const int port = this->harness.openPeer(std::vector<std::string>(count, "again"));
  int depth = 0;
  int deepest = 0;
  this->socket.onArrival([&](const Datagram& datagram) {
    deepest = std::max(deepest, ++depth);
    this->arrived.push_back(datagram.bytes);
    this->loop.wait(20);
    --depth;
  });
  this->socket.send(this->harness.ip(), port, "?");
  waitUntil(this->loop, [&] { return this->arrived.size() == count && depth == 0; });
  EXPECT_EQ(deepest, maximumNesting);
}

TYPED_TEST_P(UdpSocketContract, a_refused_datagram_is_error_10054_with_its_address_and_the_next_send_arrives) {
  const int refusing = this->harness.refusingPort();
  const int open = this->harness.openPeer({"here"});
  this->socket.onArrival([this](const Datagram& datagram) { this->arrived.push_back(datagram.bytes); });
  this->socket.onError([this](const Failure& failure, const std::string& ip, int port) {
    this->arrived.push_back(std::to_string(failure.number) + " " + ip + ":" + std::to_string(port));
  });
  this->socket.send(this->harness.ip(), refusing, "?");
  this->socket.send(this->harness.ip(), open, "first");
  waitUntil(this->loop, [this] { return this->arrived.size() == 2; });
  EXPECT_EQ(this->count("10054 " + this->harness.ip() + ":" + std::to_string(refusing)), 1);
  this->socket.send(this->harness.ip(), open, "second");
  waitUntil(this->loop, [this] { return this->arrived.size() == 3; });
  EXPECT_EQ(this->harness.received(open), (std::vector<std::string>{"first", "second"}));
}

TYPED_TEST_P(UdpSocketContract, an_address_that_is_none_and_a_port_that_is_none_are_failures) {
  const int open = this->harness.openPeer({});
  const std::string withZero("192.0.2.1\0x", 11);
  for (const std::string& none : {std::string("master.example.test"), std::string(), std::string("1.2.3"),
                                  std::string("1.2.3.256"), std::string("192.0.2.1 -x"), withZero}) {
    EXPECT_THROW(this->socket.send(none, open, "?"), Failure) << none;
  }
  for (const int none : {0, -1, 65536}) {
    EXPECT_THROW(this->socket.send(this->harness.ip(), none, "?"), Failure) << none;
  }
  this->socket.send(this->harness.ip(), open, "fine");
  waitUntil(this->loop, [&] { return this->harness.received(open).size() == 1; });
}

TYPED_TEST_P(UdpSocketContract, a_closed_socket_forgets_what_was_coming_also_inside_its_handler_and_opens_anew) {
  const int port = this->harness.openPeer({"one", "two"});
  this->socket.onArrival([this](const Datagram& datagram) {
    this->arrived.push_back(datagram.bytes);
    this->socket.close();
  });
  for (std::size_t sent = 1; sent <= 2; ++sent) {
    this->socket.send(this->harness.ip(), port, "?");
    waitUntil(this->loop, [&] { return this->arrived.size() == sent; });
    this->loop.wait(30);
    EXPECT_EQ(this->arrived.size(), sent);
  }
}

REGISTER_TYPED_TEST_SUITE_P(UdpSocketContract, answers_arrive_whole_from_the_loop_with_their_senders_address,
                            a_handler_that_waits_is_entered_again_at_most_64_deep_and_nothing_is_lost,
                            a_refused_datagram_is_error_10054_with_its_address_and_the_next_send_arrives,
                            an_address_that_is_none_and_a_port_that_is_none_are_failures,
                            a_closed_socket_forgets_what_was_coming_also_inside_its_handler_and_opens_anew);

}  // namespace vantrel

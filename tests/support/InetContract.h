// What every HTTP client does, whatever it stands on. A peer serves pages and has `inet()`, `loop()`, `put(path, body)`
// that returns the address, and `breakAfter(path, bytes)`.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Failure.h"
#include "platform/Inet.h"
#include "platform/Loop.h"

namespace vantrel {

template <class Peer>
struct InetContract : testing::Test, Peer {
  void waitForHead() {
    for (int tries = 0; this->inet().stillExecuting() && tries < 500; ++tries) {
      this->loop().wait(10);
    }
  }
  void execute(const std::string& url) {
    this->inet().execute(url, "");
    EXPECT_TRUE(this->inet().stillExecuting());
    EXPECT_THROW(this->inet().getHeader(), Failure);
    waitForHead();
  }
};

TYPED_TEST_SUITE_P(InetContract);

TYPED_TEST_P(InetContract, a_head_and_a_body_come_in_pieces_of_the_wanted_size) {
  std::string body;
  for (int i = 0; i < 100000; ++i) {
    body += static_cast<char>(i % 251);
  }
  this->execute(this->put("/a.bin", body));
  EXPECT_TRUE(this->inet().getHeader().starts_with("HTTP/1.1 200"));
  EXPECT_TRUE(this->inet().getHeader().ends_with("\r\n\r\n"));
  EXPECT_EQ(this->inet().getHeaderValue("Content-Length"), "100000");
  EXPECT_EQ(this->inet().getHeaderValue("X-None"), "");
  std::string got;
  for (std::string piece = this->inet().getChunk(1000); !piece.empty(); piece = this->inet().getChunk(1000)) {
    ASSERT_EQ(piece.size(), 1000U);
    got += piece;
  }
  EXPECT_EQ(got, body);
  EXPECT_EQ(this->inet().getChunk(1000), "");
}

TYPED_TEST_P(InetContract, an_unknown_page_and_no_server_are_told_apart) {
  this->execute(this->put("/there", "x") + "-not");
  EXPECT_EQ(this->inet().getHeader().substr(9, 3), "404");
  this->inet().cancel();
  EXPECT_FALSE(this->inet().stillExecuting());
  EXPECT_THROW(this->inet().getHeader(), Failure);
  EXPECT_THROW(this->inet().getChunk(1), Failure);
}

TYPED_TEST_P(InetContract, a_wait_ends_with_its_request) {
  for (const bool another : {false, true}) {
    const std::string url = this->put("/a", std::string(20000, 'a'));
    const std::string other = this->put("/b", "b");
    this->stallAfter("/a", 5000);
    this->execute(url);
    EXPECT_EQ(this->inet().getChunk(4000).size(), 4000U);
    this->loop().startTimer(50, TimerKind::once, [&] {
      if (another) {
        this->inet().execute(other, "");
      } else {
        this->inet().cancel();
      }
    });
    const std::uint64_t start = this->loop().tickCount();
    EXPECT_THROW(
        {
          this->inet().getChunk(4000);
          this->inet().getChunk(4000);
        },
        Failure);
    EXPECT_LT(this->loop().tickCount() - start, 1000U);
    if (another) {
      this->waitForHead();
      EXPECT_EQ(this->inet().getChunk(10), "b");
    }
  }
}

TYPED_TEST_P(InetContract, what_came_before_the_connection_broke_is_given_out) {
  const std::string url = this->put("/a", std::string(20000, 'a'));
  this->breakAfter("/a", 8000);
  this->execute(url);
  std::size_t got = 0;
  EXPECT_THROW(
      for (;;) {
        const std::size_t size = this->inet().getChunk(1000).size();
        ASSERT_GT(size, 0U);
        got += size;
      },
      Failure);
  EXPECT_EQ(got, 8000U);
}

TYPED_TEST_P(InetContract, a_page_comes_whole_or_not_at_all) {
  EXPECT_EQ(this->inet().openUrl(this->put("/page", "the page")), "the page");
  const std::string url = this->put("/late", "late");
  this->stallAfter("/late", 2);
  this->loop().startTimer(10, TimerKind::once, [&] { this->inet().cancel(); });
  EXPECT_EQ(this->inet().openUrl(url), "");
}

REGISTER_TYPED_TEST_SUITE_P(InetContract, a_head_and_a_body_come_in_pieces_of_the_wanted_size,
                            an_unknown_page_and_no_server_are_told_apart, a_wait_ends_with_its_request,
                            what_came_before_the_connection_broke_is_given_out, a_page_comes_whole_or_not_at_all);

}  // namespace vantrel

// The HTTP client against a real web server that misbehaves on purpose.

#include <unistd.h>

#include <fstream>

#include "desktop/adapters/CurlInet.h"
#include "desktop/adapters/QtLoop.h"
#include "sandbox/SandboxWorld.h"
#include "support/InetContract.h"

namespace vantrel {
namespace {

using sandbox::WebFaultKind;

// Bytes of memory that the process has.
std::size_t residentBytes() {
  std::size_t all = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

struct RealInetPeer {
  RealInetPeer() { world.start(); }
  Inet& inet() { return client; }
  Loop& loop() { return time; }
  std::string address(const std::string& path) const {
    return "http://127.44.0.1:" + std::to_string(world.webPort().value()) + path;
  }
  std::string put(const std::string& path, const std::string& body) {
    world.webFiles().put(path, body, 0);
    return address(path);
  }
  void fault(const std::string& path, const sandbox::WebFault& what) { world.webFiles().setFault(path, what); }
  void breakAfter(const std::string& path, std::size_t bytes) { fault(path, {WebFaultKind::ResetAfter, bytes, ""}); }
  void stallAfter(const std::string& path, std::size_t bytes) { fault(path, {WebFaultKind::StallAfter, bytes, ""}); }

  static sandbox::WorldSettings settings() {
    sandbox::WorldSettings settings;
    settings.servers = 0;
    settings.masterAddress = settings.webAddress = "127.44.0.1";
    settings.masterPort = settings.gamePort = 0;
    settings.webPort = 0;
    settings.mapBytes = 100;
    return settings;
  }

  sandbox::SandboxWorld world{settings()};
  QtLoop time;
  CurlInet client{time, {std::chrono::milliseconds(400), std::chrono::milliseconds(400)}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Real, InetContract, RealInetPeer);

struct InetTest : InetContract<RealInetPeer> {
  // All that comes, "!" behind it when it did not end well, and the status in front.
  std::string result(const std::string& url) {
    std::string all;
    try {
      client.execute(url, "");
      waitForHead();
      all = client.getHeader().substr(9, 3) + " ";
      for (std::string piece = client.getChunk(1024); !piece.empty(); piece = client.getChunk(1024)) {
        all += piece;
      }
    } catch (const Failure&) {
      all += "!";
    }
    return all;
  }
};

TEST_F(InetTest, a_server_that_misbehaves_is_taken_as_it_is) {
  const std::string url = put("/a", "0123456789");
  const std::string other = put("/other", "elsewhere");
  struct {
    sandbox::WebFault fault;
    std::string wanted;
  } const cases[] = {
      {{WebFaultKind::None}, "200 0123456789"},
      {{WebFaultKind::Status, 302, other}, "200 elsewhere"},
      {{WebFaultKind::Status, 302, "file:///etc/hostname"}, "!"},
      {{WebFaultKind::RedirectLoop}, "!"},
      {{WebFaultKind::StallAtOnce}, "!"},
      {{WebFaultKind::StallAfter, 4}, "200 0123!"},
      {{WebFaultKind::ShortBody, 4}, "200 0123"},
      {{WebFaultKind::LongBody, 4}, "200 0123456789"},
      {{WebFaultKind::NoLength}, "200 0123456789"},
      {{WebFaultKind::Chunked, 3}, "200 0123456789"},
      {{WebFaultKind::PartialHead}, "!"},
      {{WebFaultKind::ResetAfter}, "!"},
      {{WebFaultKind::OldProtocol}, "200 0123456789"},
  };
  for (const auto& c : cases) {
    fault("/a", c.fault);
    EXPECT_EQ(result(url), c.wanted) << static_cast<int>(c.fault.kind);
  }
  fault("/a", {WebFaultKind::Status, 403, ""});
  EXPECT_TRUE(result(url).starts_with("403 "));
  for (const char* const bad : {"", "ftp://127.0.0.1/", "file:///etc/hostname", "http://127.44.0.1:1/", "http://\n"}) {
    EXPECT_EQ(result(bad), "!") << bad;
  }
}

TEST_F(InetTest, lines_of_the_head_are_found_whatever_their_capitals) {
  world.webFiles().put("/a b\xC3\xA9", "x", 0);
  client.execute(address("/a b\xE9"), "Range: bytes=0-\r\n");
  waitForHead();
  EXPECT_EQ(client.getHeaderValue("content-length"), "1")
      << "and blanks and letters of all kinds are sent as they must be";
  EXPECT_EQ(client.getHeader().substr(9, 3), "206");
}

TEST_F(InetTest, memory_stays_flat_while_nobody_takes_what_comes_and_a_page_has_an_end) {
  const std::string url = put("/endless", "x");
  fault("/endless", {WebFaultKind::EndlessBody, 100, ""});
  client.execute(url, "");
  waitForHead();
  client.getChunk(1);
  const std::size_t before = residentBytes();
  time.wait(300);
  EXPECT_LT(residentBytes(), before + (16U << 20));
  EXPECT_EQ(client.openUrl(url).size(), 8U << 20);
}

TEST_F(InetTest, events_run_while_a_body_comes) {
  const std::string url = put("/big", std::string(30 << 20, 'b'));
  int turns = 0;
  const TimerId timer = time.startTimer(5, TimerKind::repeating, [&turns] { ++turns; });
  EXPECT_EQ(result(url).size(), 4U + (30 << 20));
  time.stopTimer(timer);
  EXPECT_GT(turns, 2);
}

}  // namespace
}  // namespace vantrel

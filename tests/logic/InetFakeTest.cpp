#include "support/FakeInet.h"
#include "support/InetContract.h"

namespace vantrel {
namespace {

struct FakeInetPeer {
  Inet& inet() { return client; }
  Loop& loop() { return time; }
  std::string put(const std::string& path, const std::string& body) {
    web.pages["http://a.test" + path] = {.body = body};
    return "http://a.test" + path;
  }
  void breakAfter(const std::string& path, std::size_t bytes) { web.pages["http://a.test" + path].breaksAfter = bytes; }
  void stallAfter(const std::string& path, std::size_t bytes) { web.pages["http://a.test" + path].stallsAfter = bytes; }

  VirtualLoop time;
  FakeWeb web{time};
  FakeInet client{web};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, InetContract, FakeInetPeer);

}  // namespace
}  // namespace vantrel

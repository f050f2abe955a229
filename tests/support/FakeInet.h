// The web in memory: pages that a test puts under their addresses, and what is wrong with them.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/Text.h"
#include "platform/Connectivity.h"
#include "platform/Failure.h"
#include "platform/Inet.h"
#include "support/VirtualLoop.h"

namespace vantrel {

struct FakePage {
  std::string body;
  std::string status = "HTTP/1.1 200 OK";
  std::optional<std::string> length = {};       // instead of the true one; empty for no such line
  int headTime = 20;                            // milliseconds until the head is there
  int chunkTime = 1;                            // milliseconds for each chunk
  std::size_t breaksAfter = std::string::npos;  // bytes, then the connection is lost
  std::size_t stallsAfter = std::string::npos;  // bytes, then nothing comes until somebody gives up
  bool hasHead = true;
};

// A page that there is none of is answered with 404.
struct FakeWeb {
  explicit FakeWeb(VirtualLoop& l) : loop(l) {}

  VirtualLoop& loop;
  std::map<std::string, FakePage> pages;
  std::string asked;  // each address with the headers, a line each
};

class FakeInet : public Inet {
 public:
  explicit FakeInet(FakeWeb& web) : web_(web) {}

  void execute(const std::string& url, const std::string& headers) override {
    web_.asked += url + (headers.empty() ? "\n" : " " + headers);
    const auto found = web_.pages.find(url);
    request_ = std::make_shared<Request>();
    request_->page =
        found == web_.pages.end() ? FakePage{.body = "Not here.", .status = "HTTP/1.1 404 Not Found"} : found->second;
    request_->headAt = web_.loop.tickCount() + static_cast<std::uint64_t>(request_->page.headTime);
  }
  bool stillExecuting() const override { return request_ && web_.loop.tickCount() < request_->headAt; }
  std::string getHeader() const override {
    if (!request_ || stillExecuting() || !request_->page.hasHead) {
      throw failures::connectionReset();
    }
    const FakePage& page = request_->page;
    const std::string length = page.length.value_or(std::to_string(page.body.size()));
    return page.status + "\r\n" + (length.empty() ? "" : "Content-Length: " + length + "\r\n") + "\r\n";
  }
  std::string getHeaderValue(const std::string& name) const override {
    const std::string head = getHeader();
    const std::size_t at = head.find(name + ": ");
    return at == std::string::npos ? "" : head.substr(at + name.size() + 2, head.find('\r', at) - at - name.size() - 2);
  }
  std::string getChunk(int size) override {
    const std::shared_ptr<Request> request = request_;
    if (request) {
      web_.loop.wait(request->page.chunkTime);
      while (request == request_ && request->given >= request->page.stallsAfter && !web_.loop.ending()) {
        web_.loop.wait(10);
      }
    }
    if (!request || request != request_ || web_.loop.ending() || request->given >= request->page.breaksAfter) {
      throw failures::connectionReset();
    }
    const std::string chunk = request->page.body.substr(request->given, static_cast<std::size_t>(size));
    request->given += chunk.size();
    return chunk;
  }
  void cancel() override { request_.reset(); }
  std::string openUrl(const std::string& url) override {
    execute(url, "");
    const std::shared_ptr<Request> request = request_;
    web_.loop.wait(request->page.headTime);
    return request == request_ && request->page.hasHead ? request->page.body : std::string();
  }

 private:
  struct Request {
    FakePage page;
    std::uint64_t headAt = 0;
    std::size_t given = 0;
  };

  FakeWeb& web_;
  std::shared_ptr<Request> request_;
};

struct FakeConnectivity : Connectivity {
  ConnectedState internetGetConnectedState() const override { return state; }

  ConnectedState state{true, 2};
};

}  // namespace vantrel

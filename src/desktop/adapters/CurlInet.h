// The HTTP client on libcurl. Each request has a thread of its own; nothing but finished bytes comes over from it.
#pragma once

#include <memory>

#include "desktop/adapters/CurlRequest.h"
#include "platform/Inet.h"
#include "platform/Loop.h"

namespace vantrel {

class CurlInet : public Inet {
 public:
  // `loop` must outlive this.
  explicit CurlInet(Loop& loop, const CurlPatience& patience = {}) : loop_(loop), patience_(patience) {}
  CurlInet(const CurlInet&) = delete;
  CurlInet& operator=(const CurlInet&) = delete;
  ~CurlInet() override;

  void execute(const std::string& url, const std::string& headers) override;
  bool stillExecuting() const override;
  std::string getHeader() const override;
  std::string getHeaderValue(const std::string& name) const override;
  std::string getChunk(int size) override;
  void cancel() override;
  std::string openUrl(const std::string& url) override;

 private:
  void letEventsRun(const std::shared_ptr<CurlRequest>& request);
  std::string take(std::size_t most);
  bool fill(const std::shared_ptr<CurlRequest>& request);

  Loop& loop_;
  CurlPatience patience_;
  std::shared_ptr<CurlRequest> request_;
  std::string block_;      // of the body, what came last
  std::size_t given_ = 0;  // of that
  std::uint64_t lastEvents_ = 0;
};

}  // namespace vantrel

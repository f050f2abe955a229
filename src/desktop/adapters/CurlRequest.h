// One GET of libcurl on a thread of its own, which whoever waits for it can leave to itself at any moment: looking up a
// name or a server that says nothing then keep a thread waiting for a while, and nobody else.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <string>

namespace vantrel {

// How long a server is waited for.
struct CurlPatience {
  std::chrono::milliseconds head{60'000};   // from the start
  std::chrono::milliseconds stall{30'000};  // between two pieces of the body
};

class CurlRequest {
 public:
  enum class Wait { data, end, failed, notYet };

  // Starts it. `headers`: further header lines, each with CR LF at its end, or empty.
  CurlRequest(const std::string& url, const std::string& headers, const CurlPatience& patience);
  CurlRequest(const CurlRequest&) = delete;
  CurlRequest& operator=(const CurlRequest&) = delete;
  // Lets it go; it ends soon afterwards.
  ~CurlRequest();

  // Breaks it off and waits for its thread, at most for `time`: a program had better not end underneath it.
  void end(std::chrono::milliseconds time);

  // Waits until the head is there or the request has failed, at most for `time`. False when it is still under way.
  bool waitForHead(std::chrono::milliseconds time);
  // The head of the last response; empty when there is none.
  std::string head();
  // Replaces `block` with the next bytes of the body, if there are any within `time`.
  Wait waitForBlock(std::chrono::milliseconds time, std::string& block);

 private:
  struct Shared;
  std::shared_ptr<Shared> shared_;
};

}  // namespace vantrel

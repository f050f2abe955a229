// Face of the HTTP client: one GET at a time, its head as it came, its body in chunks. `http` and `https` only;
// redirects, proxies and certificates by the client's own rules. Memory stays bounded, however fast the server and
// however slow the reader.
//
// Waits go through the program's `Loop`, so events run meanwhile and may cancel the request or begin another: a wait of
// a request that is no longer the one under way ends as a failed one.
#pragma once

#include <string>

namespace vantrel {

class Inet {
 public:
  virtual ~Inet() = default;

  // Begins a GET and returns at once; what was under way is cancelled. `headers`: further header lines, each with CR LF
  // at its end, or empty. Whatever is wrong with the address or the server shows when the head is asked for.
  virtual void execute(const std::string& url, const std::string& headers) = 0;

  // True from `execute` until the head is there or the request has failed, 60 seconds later at the latest.
  virtual bool stillExecuting() const = 0;

  // The whole head of the last response, from its status line on, with CR LF at each line's end. Throws a failure when
  // there is none: nothing was asked, it still executes, it failed or was cancelled.
  virtual std::string getHeader() const = 0;

  // The value of the named line of that head, capitals apart, without the blanks around it; empty when there is none.
  // Throws as `getHeader` does.
  virtual std::string getHeaderValue(const std::string& name) const = 0;

  // The next `size` bytes (1 or more) of the body; fewer only at its end, and none behind it. Lets events run while it
  // waits, and now and then also when it need not. Throws a failure when the transfer broke off, nothing came for 30
  // seconds, the request was cancelled or the program is ending; what had come is given out before, but for a single
  // byte, which would look like an end.
  virtual std::string getChunk(int size) = 0;

  // Ends the request, whatever its state. Allowed when there is none.
  virtual void cancel() = 0;

  // Gets a whole body, of whatever status, and lets events run until it is there: empty when the request failed, took
  // more than 60 seconds, or was cancelled. Of a body of more than 8 MB the first 8 MB.
  virtual std::string openUrl(const std::string& url) = 0;
};

}  // namespace vantrel

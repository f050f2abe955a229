// The index page of a mirror as plain text.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "export/modHTML2Text.h"
#include "platform/Inet.h"
#include "platform/Loop.h"

namespace vantrel {

class MirrorPages {
 public:
  static constexpr const char* timedOut = "Map server timed out.";

  // All of it must outlive this.
  MirrorPages(Loop& loop, Inet& inet1, modHTML2Text& reduction) : loop_(loop), inet1_(inet1), reduction_(reduction) {}

  // Gets the index of a mirror, and lets events run until it is there; what was being got before comes to nothing. A
  // mirror that gives nothing is waited for all of `waits`, in milliseconds, and then gives `timedOut`. Nothing as soon
  // as `goesOn` is false.
  std::optional<std::string> read(const std::string& mirror, const std::vector<int>& waits,
                                  const std::function<bool()>& goesOn);

  // Lets what is being got come to nothing.
  void stop() { inet1_.cancel(); }

 private:
  Loop& loop_;
  Inet& inet1_;
  modHTML2Text& reduction_;
};

}  // namespace vantrel

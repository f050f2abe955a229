// A game server's reply as a list of text elements. docs/wire.md tells the format.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class StatusReply {
 public:
  explicit StatusReply(std::vector<std::string> elements) : elements_(std::move(elements)) {}

  // At least 1.
  int count() const { return static_cast<int>(elements_.size()); }
  // Element 0 is the value of the first key; key, value, key, value follow. Throws failure 9 when there is none.
  const std::string& element(int number) const;

 private:
  std::vector<std::string> elements_;
};

// Any bytes make a reply: one whose first key is not where it should be is split from its first byte.
StatusReply ParseStatusReply(std::string_view datagram);

}  // namespace vantrel

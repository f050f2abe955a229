#include "core/WindowsArguments.h"

#include <cstddef>

namespace vantrel {
namespace {

class Splitter {
 public:
  explicit Splitter(std::string_view text) : text_(text) {}

  std::vector<std::string> split() {
    while (at_ < text_.size()) {
      if (isBlank()) {
        ++at_;
      } else {
        arguments_.push_back(argument());
      }
    }
    return arguments_;
  }

 private:
  bool isBlank() const { return text_[at_] == ' ' || text_[at_] == '\t'; }
  bool isQuote(std::size_t at) const { return at < text_.size() && text_[at] == '"'; }

  std::string argument() {
    std::string taken;
    bool quoted = false;
    while (at_ < text_.size() && (quoted || !isBlank())) {
      if (text_[at_] == '\\') {
        takeBackslashes(taken);
      } else if (!isQuote(at_)) {
        taken += text_[at_++];
      } else if (quoted && isQuote(at_ + 1)) {
        taken += '"';
        at_ += 2;
      } else {
        quoted = !quoted;
        ++at_;
      }
    }
    return taken;
  }

  // They mean something in front of a quote only: each two are one, and one that is left over keeps the quote.
  void takeBackslashes(std::string& taken) {
    std::size_t count = 0;
    for (; at_ < text_.size() && text_[at_] == '\\'; ++at_) {
      ++count;
    }
    if (!isQuote(at_)) {
      taken.append(count, '\\');
      return;
    }
    taken.append(count / 2, '\\');
    if (count % 2 != 0) {
      taken += '"';
      ++at_;
    }
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<std::string> arguments_;
};

}  // namespace

std::vector<std::string> windowsArguments(std::string_view commandLine) {
  return Splitter(commandLine).split();
}

}  // namespace vantrel

// Lets pending events run every few milliseconds of work that lasts, and tells when the program is about to end.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Loop.h"

namespace vantrel {

class EventBreaks {
 public:
  // `loop` must outlive this.
  explicit EventBreaks(Loop& loop) : loop_(loop), lastBreak_(loop.tickCount()) {}

  // To be called after each small step, with the characters that it took. An event may do anything in the meantime.
  void after(std::size_t characters) {
    done_ += characters;
    if (done_ >= charactersPerLook) {
      done_ = 0;
      look();
    }
  }
  // True once the work should stop.
  bool ending() const { return ending_; }

 private:
  static constexpr std::size_t charactersPerLook = 4096;  // well under a millisecond of work
  static constexpr std::uint64_t breakInterval = 5;       // milliseconds

  void look() {
    if (loop_.tickCount() - lastBreak_ >= breakInterval) {
      loop_.wait(0);
      lastBreak_ = loop_.tickCount();
    }
    ending_ = loop_.ending();
  }

  Loop& loop_;
  std::uint64_t lastBreak_;
  std::size_t done_ = 0;  // characters since the last look at the clock
  bool ending_ = false;
};

}  // namespace vantrel

// A loudspeaker that remembers what it played. A sound lasts as long as `duringSound` does.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Sound.h"

namespace vantrel {

struct FakeSound : Sound {
  void PlayWav(const std::string& path) override {
    played.push_back(path);
    if (duringSound) {
      duringSound();
    }
  }

  std::function<void()> duringSound;
  std::vector<std::string> played;
};

}  // namespace vantrel

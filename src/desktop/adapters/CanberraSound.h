// The loudspeaker by way of libcanberra, which plays through the sound server of the desktop, or without one.
#pragma once

#include "desktop/adapters/Errand.h"
#include "platform/Loop.h"
#include "platform/Sound.h"

namespace vantrel {

class CanberraSound : public Sound {
 public:
  explicit CanberraSound(Loop& loop) : loop_(loop) {}

  // A file of more than 4 MB is none that can be played. A sound server that hangs is waited for as long as a sound may
  // last, with events running; until it has let go of that sound, every other one is silent.
  void PlayWav(const std::string& path) override;

 private:
  Loop& loop_;
  Errand errand_;
};

// The sound of a slot that has come open: `open-slot.wav` in the folder `sounds` of `appDir`, beside the program or in
// the shared data of the place where the program is installed; the first that is there, else the empty path. All paths
// are in the system's own bytes. REQUIRES: an application object.
std::string openSlotSound(const std::string& appDir);

}  // namespace vantrel

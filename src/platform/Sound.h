// Face of the machine's loudspeaker.
#pragma once

#include <string>

namespace vantrel {

class Sound {
 public:
  virtual ~Sound() = default;

  // Plays one sound file of the kind .wav to its end, which comes after 10 seconds at the latest, and returns then, or
  // at once while the program ends; events run meanwhile. `path`: in the system's own bytes. Silent, and back at once,
  // when there is no such file, it is none that can be played, another sound is being played or the machine has no
  // sound; no other sound is heard in its place.
  virtual void PlayWav(const std::string& path) = 0;
};

}  // namespace vantrel

// The program's own version.
#pragma once

#include <string>

namespace vantrel {

struct Version {
  int major = 0;
  int minor = 0;
  int revision = 0;

  // "1.0" and "1.0.0".
  std::string shortText() const { return std::to_string(major) + "." + std::to_string(minor); }
  std::string text() const { return shortText() + "." + std::to_string(revision); }
};

}  // namespace vantrel

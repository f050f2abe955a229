// Face of the desktop's shell.
#pragma once

#include <string>

namespace vantrel {

class Shell {
 public:
  virtual ~Shell() = default;

  // Asks the desktop to open a file, folder or web address with the program that stands for it, and does not wait for
  // that. `target`: a path in the system's own bytes, or an address with a scheme. True when the desktop took the job.
  virtual bool open(const std::string& target) = 0;

  // Replaces what is on the clipboard with a text.
  virtual void setClipboard(const std::string& text) = 0;
};

}  // namespace vantrel

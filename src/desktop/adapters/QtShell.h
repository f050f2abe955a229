// The desktop's shell and clipboard.
#pragma once

#include "platform/Shell.h"

namespace vantrel {

class QtShell : public Shell {
 public:
  // Opens documents and folders, web pages, mail addresses and `halo` links. What could run as a program is refused.
  bool open(const std::string& target) override;
  void setClipboard(const std::string& text) override;
};

}  // namespace vantrel

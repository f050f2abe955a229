// The registration of the program as the one that opens halo:// links, in the registry and on the desktop.
#pragma once

#include <string>

#include "core/modReg.h"
#include "links/LinkHandler.h"
#include "platform/Notices.h"
#include "platform/SchemeHandler.h"

namespace vantrel {

class modProtocol {
 public:
  // What it works on; all of it must outlive it. `program`: full path of the program, in the system's own bytes.
  struct Context {
    modReg& reg;
    Notices& notices;
    SchemeHandler& schemes;
    LinkHandler& links;
    std::string program;
  };

  explicit modProtocol(const Context& context) : c_(context) {}

  // Registers the program where it is not, and then acts on the link that it was started with. `commandLine`: all of
  // it, behind the program's name.
  void registerProtocolHandler(const std::string& commandLine);

  // True when the registry names this program for the scheme, and the desktop does.
  bool protocolIsMine(const std::string& name) const;
  void registerProtocol(const std::string& name, const std::string& path);

 private:
  Context c_;
};

}  // namespace vantrel

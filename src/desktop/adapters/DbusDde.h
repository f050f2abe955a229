// The exchange of data between programs over the session's message bus, for desktops that have no exchange of their
// own. One topic leads somewhere: "mirc|command", the commands of an IRC client, goes to HexChat.
#pragma once

#include "desktop/adapters/Errand.h"
#include "platform/Dde.h"

namespace vantrel {

// Nothing is kept from one call to the next: each one looks for the bus anew, so that a bus or a client that went and
// came back is found. While a bus that hangs still has hold of an earlier call, every other one fails at once.
class DbusDde : public Dde {
 public:
  // Letters in `topic` may be large or small.
  void open(const std::string& topic) override;

  // `text` is a command with its slash. What is no command is not taken; characters of control are left out, but for
  // the one that begins a colour. The client has one kind of data, whatever `item` says.
  void poke(const std::string& item, const std::string& text) override;

  void close() override { isOpen_ = false; }

 private:
  Errand errand_;
  bool isOpen_ = false;
};

}  // namespace vantrel

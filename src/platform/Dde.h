// Face of the exchange of data between programs on the desktop, of which this program is the client. A conversation is
// opened, used and closed by one caller in one go.
#pragma once

#include <string>

namespace vantrel {

class Dde {
 public:
  virtual ~Dde() = default;

  // Opens the conversation with the program that serves `topic`, named "service|topic". Throws failure 282 when no such
  // program runs, or none is found within half a second; no program is started for it. A conversation that was open is
  // closed first.
  virtual void open(const std::string& topic) = 0;

  // Hands `text` to the program as the data of `item`, both in code page 1252. Throws failure 286 when the program does
  // not take it or does not answer within half a second, 293 when no conversation is open. A program that did not
  // answer may take the text later all the same.
  virtual void poke(const std::string& item, const std::string& text) = 0;

  // Allowed in every state.
  virtual void close() = 0;
};

}  // namespace vantrel

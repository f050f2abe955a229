#include "join/modMirc.h"

#include <algorithm>

#include "core/FailureStyles.h"
#include "core/Text.h"

namespace vantrel {
namespace {

constexpr const char* link = "mirc|command";
constexpr const char* color =
    "\x03"
    "2,0 ";  // the client's own code for a colour, and the two it asks for

// A line break in a name would begin a command of its own in the client.
std::string withoutControls(std::string text) {
  const auto isControl = [](char character) {
    return static_cast<unsigned char>(character) < ' ' || character == '\x7F';
  };
  text.erase(std::remove_if(text.begin(), text.end(), isControl), text.end());
  return text;
}

}  // namespace

void modMirc::announceJoin(const std::string& name, const std::string& address) {
  announce("I have joined Halo CE: " + withoutControls(name) + " SERVER: halo://" + withoutControls(address) + "/join");
}

void modMirc::announceBack() {
  announce("I am back from playing Halo CE.");
}

void modMirc::announce(const std::string& text) {
  if (!window_.chkOptions[5].isChecked()) {
    return;
  }
  const std::string channel = withoutControls(std::string(trimBlanks(window_.mircChan.text.get())));
  const std::string message = "/msg " + channel + " " + color + text + " -=] Vantrel CE " + version_.shortText() + " " +
                              site_.makerSite + " [=-";
  stopSilently([&] {
    mirc_.open(link);
    mirc_.poke(message, message);
  });
  mirc_.close();
}

}  // namespace vantrel

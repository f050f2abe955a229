#include "browser/InputBoxes.h"

#include <string_view>

#include "core/Text.h"

namespace vantrel {
namespace {

constexpr const char* digits = "0123456789";

}  // namespace

InputBoxes::InputBoxes(frmMain& window, Commands& commands, Notices& notices, Loop& loop)
    : commands_(commands), notices_(notices), loop_(loop) {
  splitAddress(window.txtIP, window.txtPort);
  splitAddress(window.txtIP2, window.txtPort2);
  runOnEnter(window.txtIP, command::queryServer);
  runOnEnter(window.txtPort, command::queryServer);
  connections_.push_back(window.txtPlayer.keyPress.connect([this, &window](KeyPress& key) {
    if (key.code == keys::enter) {
      key.swallow();
      if (!window.txtPlayer.text.get().empty()) {
        commands_.cmdMenu_Click(command::findPlayer);
      }
    }
  }));
  allowOnly(window.txtIP2, std::string(digits) + ".", "Invalid IP!", "Only 0-9 and \".\" is allowed");
  allowOnly(window.txtPort2, digits, "Invalid key!", "Only 0-9 is allowed");
}

// "ip:port" in the box of the address fills both boxes; what stands behind a second ":" is dropped.
void InputBoxes::splitAddress(TextBox& address, TextBox& port) {
  connections_.push_back(address.text.changed.connect([&address, &port] {
    const std::vector<std::string> parts = split(address.text.get(), ':');
    if (parts.size() > 1) {
      address.text.set(parts[0]);
      port.text.set(parts[1]);
      if (parts[1].empty()) {
        port.typingGoesOn.fire();
      }
    }
  }));
  connections_.push_back(address.pasting.connect([](std::string& text) { text = std::string(trimBlanks(text)); }));
  // Of an address with its port the box of the port takes the port.
  connections_.push_back(port.pasting.connect([](std::string& text) {
    const std::vector<std::string> parts = split(trimBlanks(text), ':');
    text = parts.size() > 1 ? parts[1] : parts[0];
  }));
}

void InputBoxes::runOnEnter(TextBox& box, command::Number number) {
  connections_.push_back(box.keyPress.connect([this, number](KeyPress& key) {
    if (key.code == keys::enter) {
      key.swallow();
      commands_.cmdMenu_Click(number);
    }
  }));
}

// A paste is no key: of what it brings, the characters that no key could type are left out, and ":" splits it.
void InputBoxes::allowOnly(TextBox& box, const std::string& characters, const std::string& title,
                           const std::string& text) {
  connections_.push_back(box.keyPress.connect([=, this, &box](KeyPress& key) {
    const bool types = key.code > 0 && key.code < 256 && key.code != keys::tab && key.code != keys::backspace;
    if (types && characters.find(static_cast<char>(key.code)) == std::string::npos) {
      key.swallow();
      refuse(box, title, text);
    }
  }));
  connections_.push_back(box.pasting.connect([=, this, &box](std::string& pasted) {
    const std::size_t refused = std::erase_if(
        pasted, [&](char character) { return character != ':' && characters.find(character) == std::string::npos; });
    if (refused > 0) {
      loop_.startTimer(0, TimerKind::once, [=, this, &box] { refuse(box, title, text); });
    }
  }));
}

void InputBoxes::refuse(const TextBox& box, const std::string& title, const std::string& text) {
  if (refusing_.insert(&box).second) {
    notices_.popUpBalloon(text, title);
    refusing_.erase(&box);
  }
}

}  // namespace vantrel

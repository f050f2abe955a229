#include "browser/InputBoxes.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/Text.h"

namespace vantrel {
namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view linkStart = "halo://";

// The address in a text from elsewhere: without line ends and blanks around it, and without what makes it a link.
std::string addressIn(std::string text) {
  std::erase_if(text, [](char character) { return static_cast<unsigned char>(character) < ' '; });
  text = std::string(trimBlanks(text));
  if (lowerCase(text).starts_with(linkStart)) {
    text.erase(0, linkStart.size());
    text.resize(std::min(text.size(), text.find('/')));
  }
  return text;
}

// What no key could type into the box; behind a ":", which splits the text, into the box of a port.
std::size_t eraseRefused(std::string& text, std::string_view characters) {
  const std::size_t colon = std::min(text.find(':'), text.size());
  std::string head = text.substr(0, colon);
  std::string tail = text.substr(colon);
  const std::size_t refused =
      std::erase_if(head, [&](char character) { return characters.find(character) == std::string_view::npos; }) +
      std::erase_if(tail, [&](char character) { return character != ':' && digits.find(character) == digits.npos; });
  text = head + tail;
  return refused;
}

}  // namespace

InputBoxes::InputBoxes(frmMain& window, Commands& commands, Notices& notices, Loop& loop)
    : commands_(commands), notices_(notices), loop_(loop) {
  connections_.push_back(window.txtIP.keyPress.connect([this](KeyPress& key) { colonTyped_ = key.code == ':'; }));
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
  allowOnly(window.txtPort2, std::string(digits), "Invalid key!", "Only 0-9 is allowed");
}

// "ip:port" in the box of the address fills both boxes; what stands behind a second ":" is dropped.
void InputBoxes::splitAddress(TextBox& address, TextBox& port) {
  connections_.push_back(address.text.changed.connect([this, &address, &port] {
    const bool typed = std::exchange(colonTyped_, false);
    const std::vector<std::string> parts = split(address.text.get(), ':');
    if (parts.size() > 1) {
      address.text.set(parts[0]);
      port.text.set(parts[1]);
      if (typed && parts[1].empty()) {
        port.typingGoesOn.fire();
      }
    }
  }));
  connections_.push_back(address.pasting.connect([](std::string& text) { text = addressIn(text); }));
  // Of an address with its port the box of the port takes the port.
  connections_.push_back(port.pasting.connect([](std::string& text) {
    const std::vector<std::string> parts = split(addressIn(text), ':');
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

// A paste is no key: of what it brings, the characters that no key could type are left out.
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
    if (eraseRefused(pasted, characters) > 0) {
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

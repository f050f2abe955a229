#include "links/modProtocol.h"

#include <algorithm>

#include "core/FailureStyles.h"
#include "core/Text.h"

namespace vantrel {
namespace {

std::string schemeOf(std::string name) {
  std::erase_if(name, [](char c) { return c == ':' || c == ' '; });
  return name;
}

}  // namespace

void modProtocol::registerProtocolHandler(const std::string& commandLine) {
  reportAndEnd(
      [&] {
        if (!protocolIsMine("halo")) {
          registerProtocol("halo", c_.program);
        }
        c_.links.handleLink(commandLine);
      },
      [this](const Failure& failure) {
        c_.notices.ShowPopMsg("Error # " + std::to_string(failure.number) + ": " + failure.description);
      });
}

bool modProtocol::protocolIsMine(const std::string& name) const {
  const std::string scheme = schemeOf(name);
  std::string command = upperCase(c_.reg.GetRegValue(RegistryRoot::classesRoot, scheme + "\\shell\\open\\command", ""));
  std::erase(command, '"');
  if (command.ends_with(" %1")) {
    command.resize(command.size() - 3);
  }
  return command == upperCase(c_.program) && c_.schemes.isMine(scheme);
}

// What the desktop refuses is as a registry that cannot be written: it is tried again at the next start.
void modProtocol::registerProtocol(const std::string& name, const std::string& path) {
  const std::string scheme = schemeOf(name);
  const auto set = [this](const std::string& key, const std::string& valueName, const std::string& value) {
    c_.reg.SetRegValue(RegistryRoot::classesRoot, key, valueName, RegistryType::text, value);
  };
  set(scheme, "", "URL: " + scheme + " Protocol");
  set(scheme, "URL Protocol", "");
  set(scheme + "\\shell", "", "");
  set(scheme + "\\shell\\open", "", "");
  set(scheme + "\\shell\\open\\command", "", "\"" + upperCase(path) + "\" \"%1\"");
  stopSilently([&] { c_.schemes.claim(scheme); });
  c_.notices.ShowPopMsg("The " + scheme + ":// protocol has been associated with Vantrel CE.");
}

}  // namespace vantrel

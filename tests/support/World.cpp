#include "support/World.h"

#include <charconv>

#include "core/Text.h"

namespace vantrel {

World::World() {
  files.makeFolder("/app");
  commands.add(32, [this] { exchange.start(); });
}

void World::reply(const std::string& bytes, const std::string& ip, int port) {
  ws2.receive(0, {bytes, ip, port});
}

std::string World::row(int number) const {
  std::string cells;
  for (int column = 1; column <= mainWindow.grdServers.columnCount(); ++column) {
    cells += (column > 1 ? "|" : "") + mainWindow.grdServers.cellText(number, column);
  }
  return cells;
}

std::vector<std::string> World::rows() const {
  std::vector<std::string> all;
  for (int number = 1; number <= mainWindow.grdServers.rowCount(); ++number) {
    all.push_back(row(number));
  }
  return all;
}

std::string World::totals() const {
  return mainWindow.txtPlayers.text.get() + " " + mainWindow.txtCTF.text.get() + " " + mainWindow.txtSlayer.text.get() +
         " " + mainWindow.txtOther.text.get();
}

std::string World::asked() const {
  std::string all;
  for (const std::string& line : network.log) {
    const std::size_t end = line.find(" > \\status");
    if (end != std::string::npos) {
      all += line.substr(line.find(' ') + 1, end - line.find(' '));
    }
  }
  return all;
}

std::string statusReply(const std::string& name, const std::string& rest) {
  return "\\hostname\\" + name + (rest.empty() ? "" : "\\" + rest);
}

std::string listRecord(const std::string& ip, int port) {
  std::string record;
  for (const std::string& part : split(ip, '.')) {
    int byte = 0;
    std::from_chars(part.data(), part.data() + part.size(), byte);
    record += static_cast<char>(byte);
  }
  record += static_cast<char>(port / 256);
  record += static_cast<char>(port % 256);
  return record;
}

}  // namespace vantrel

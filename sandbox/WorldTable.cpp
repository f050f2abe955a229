#include "sandbox/WorldTable.h"

#include <algorithm>
#include <array>

#include "sandbox/CodePage.h"

namespace vantrel::sandbox {
namespace {

using Row = std::array<std::string, 8>;

const char* wordFor(Behaviour behaviour) {
  switch (behaviour) {
    case Behaviour::Silent:
      return "silent";
    case Behaviour::Closed:
      return "closed";
    case Behaviour::Answers:
      break;
  }
  return "answers";
}

Row rowOf(const GameServer& server) {
  return {server.endpoint.text(),
          visibleUtf8(server.hostname),
          std::to_string(server.players.size()) + "/" + std::to_string(server.maxPlayers),
          visibleUtf8(server.mapName),
          server.gameType,
          server.locked ? "locked" : "open",
          wordFor(server.behaviour),
          std::to_string(server.latency.count()) + " ms"};
}

std::size_t columnsOf(const std::string& utf8) {
  return static_cast<std::size_t>(
      std::ranges::count_if(utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

}  // namespace

std::string worldTable(const std::vector<GameServer>& servers) {
  std::vector<Row> rows{{"Address", "Name", "Players", "Map", "Type", "Entry", "Queries", "Latency"}};
  std::ranges::transform(servers, std::back_inserter(rows), rowOf);
  std::array<std::size_t, std::tuple_size_v<Row>> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], columnsOf(row[i]));
    }
  }
  std::string table;
  for (const Row& row : rows) {
    for (std::size_t i = 0; i + 1 < row.size(); ++i) {
      table += row[i] + std::string(widths[i] + 2 - columnsOf(row[i]), ' ');
    }
    table += row.back() + "\n";
  }
  return table;
}

}  // namespace vantrel::sandbox

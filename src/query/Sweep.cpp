#include "query/Sweep.h"

#include <array>
#include <optional>
#include <utility>

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/PumpWait.h"
#include "core/Text.h"
#include "core/modSGrid.h"

namespace vantrel {
namespace {

constexpr const char* statusQuery = "\\status";
constexpr int pauseInReply = 10;  // milliseconds
constexpr int countStays = 3000;  // milliseconds

// No server's reply is longer than this; of replies that are, a list takes so many bytes whole and then cuts them.
// Thousands of them, thrown at the program to fill memory and disk, come to no more than thousands of real ones.
constexpr std::size_t longestReply = 2048;                   // bytes
constexpr std::size_t oversizedAllowance = 8 * 1024 * 1024;  // bytes

// One of the running totals: the number that stood in its field when the reply came, and what the reply adds to it. The
// field is written by adding to what stands there then, since other replies may have been handled in between.
class Counter {
 public:
  explicit Counter(TextBox& field) : field_(field) {}
  // Throws a failure when the field holds no number; the total then counts from 0.
  void read() { start_ = toInteger16(field_.text.get()); }
  // Throws failure 6, with nothing counted, when the total leaves the 16-bit range.
  void add(double amount) { added_ = toInteger16(start_ + added_ + amount) - start_; }
  void show() {
    const std::string& shown = field_.text.get();
    const std::int16_t now = isNumeric(shown) ? toInteger16(shown) : std::int16_t{0};
    field_.text.set(std::to_string(addInteger16(now, added_)));
  }

 private:
  TextBox& field_;
  std::int16_t start_ = 0;
  int added_ = 0;
};

}  // namespace

// The working values of one reply.
struct Sweep::Reply {
  Reply(Datagram arrived, frmMain& window)
      : datagram(std::move(arrived)),
        counters{Counter(window.txtPlayers), Counter(window.txtCTF), Counter(window.txtSlayer),
                 Counter(window.txtOther)} {}

  // Throws failure 6 when the list has no number left for the row.
  std::int16_t row() const {
    if (!number) {
      throw failures::overflow();
    }
    return *number;
  }

  Counter& players() { return counters[0]; }
  Counter& gameTypeCounter() {
    if (lowerCase(gameType) == "ctf") {
      return counters[1];
    }
    return counters[gameType == "Slayer" ? 2 : 3];
  }

  Datagram datagram;
  StatusReply elements{{std::string()}};
  std::optional<std::int16_t> number;  // of the row
  std::array<Counter, 4> counters;
  std::string maximum;
  std::string playersText;
  std::string mapName;
  std::string gameType;
  std::string passwordFlag = "No";
};

Sweep::Sweep(const Context& context) : c_(context) {
  c_.ws2.onArrival([this](const Datagram& datagram) { handleReply(datagram); });
}

Sweep::~Sweep() {
  c_.loop.stopTimer(rest_);
  c_.ws2.onArrival({});
}

// The count stands for a while behind the last reply.
void Sweep::showSearch(const Reply& reply) {
  c_.players.lblStatus.caption.set(std::to_string(reply.row()) + " servers queried.");
  c_.loop.stopTimer(rest_);
  rest_ = c_.loop.startTimer(countStays, TimerKind::repeating, [this] {
    if (!c_.progress.walking.get()) {
      c_.loop.stopTimer(std::exchange(rest_, 0));
      c_.players.lblStatus.caption.set(frmPlayers::atRest);
    }
  });
}

void Sweep::QueryServer(const std::string& ip, int port) {
  c_.ws2.send(ip, port, statusQuery);
  c_.progress.noteQuery(ip, port);
}

void Sweep::handleReply(const Datagram& datagram) {
  frmMain& window = c_.mainWindow;
  Reply reply({takeBytes(datagram), datagram.ip, datagram.port}, window);
  c_.progress.noteReply(reply.datagram.ip, reply.datagram.port);
  const auto showCount = [&] { this->showCount(reply); };
  // Whatever fails in here, the reply still makes a row with what was gathered.
  const SkippingSteps gathering([&] {
    stopSilently(showCount);
    window.grdServers.redraw.set(true);
  });
  window.txtPlayer.enabled.set(false);
  gather(reply, gathering);
  gathering(showCount);
  for (Counter& counter : reply.counters) {
    gathering([&] { counter.show(); });
  }

  const SkippingSteps step;
  RowFate fate = RowFate::gone;
  step([&] { fate = showRow(reply); });
  window.grdServers.redraw.set(true);
  if (fate == RowFate::shown) {
    step([&] { writeCache(reply); });
  }
  window.tmrPing.switchOn();
  if (fate == RowFate::shown && c_.players.visible.get()) {
    step([&] { showSearch(reply); });
  }
  window.txtPlayer.enabled.set(true);
  if (fate == RowFate::shown) {
    step([&] { rowAdded.fire(reply.row()); });
  }
}

std::string Sweep::takeBytes(const Datagram& datagram) {
  const std::uint32_t generation = c_.mainWindow.grdServers.generation();
  if (oversizedGeneration_ != generation) {
    oversizedGeneration_ = generation;
    oversizedBytes_ = 0;
  }
  if (datagram.bytes.size() <= longestReply) {
    return datagram.bytes;
  }
  oversizedBytes_ += datagram.bytes.size();
  return oversizedBytes_ <= oversizedAllowance ? datagram.bytes : datagram.bytes.substr(0, longestReply);
}

void Sweep::showCount(const Reply& reply) {
  c_.mainWindow.lblCount.caption.set("Server Count: " + std::to_string(reply.row()));
}

void Sweep::gather(Reply& reply, const SkippingSteps& step) {
  for (Counter& counter : reply.counters) {
    step([&] { counter.read(); });
  }
  step([&] { reply.number = toInteger16(c_.mainWindow.grdServers.rowCount() + 1.0); });
  reply.elements = ParseStatusReply(reply.datagram.bytes);
  for (int i = 1; i < reply.elements.count(); ++i) {
    gatherElement(reply, i, step);
  }
}

// Every element is looked at, not only those in the place of a key: a value that reads like a key counts as one.
void Sweep::gatherElement(Reply& reply, int i, const SkippingSteps& step) {
  const std::string& key = reply.elements.element(i);
  const auto value = [&]() -> const std::string& { return reply.elements.element(i + 1); };
  if (key == "maxplayers") {
    step([&] { reply.maximum = value(); });
  }
  if (key == "numplayers") {
    step([&] { reply.players().add(toNumber(value())); });
    step([&] { reply.playersText = value() + "/" + reply.maximum; });
  }
  if (key == "password") {
    step([&] { reply.passwordFlag = value() == "0" ? "No" : "Yes"; });
  }
  if (key == "mapname") {
    step([&] { reply.mapName = value(); });
  }
  if (key == "gametype") {
    step([&] {
      reply.gameType = value();
      reply.gameTypeCounter().add(1);
    });
  }
  step([&] { c_.stores.LoadBuddies(); });
  if (key != "player_flags" && key.find("player_") != std::string::npos) {
    step([&] { playerSeen.fire({value(), reply.datagram.ip, reply.datagram.port}); });
  }
}

Sweep::RowFate Sweep::showRow(Reply& reply) {
  ServerGrid& grid = c_.mainWindow.grdServers;
  const SkippingSteps step;
  if (grid.columnCount() == 0) {
    SetupGrid(grid);
  }
  // A listener that waited in the walk may have let other replies take this number, or the user empty the list.
  if (reply.row() != grid.rowCount() + 1) {
    reply.number = toInteger16(grid.rowCount() + 1.0);
    showCount(reply);
  }
  const int row = reply.row();
  grid.redraw.set(false);
  step([&] { grid.setCell(row, cName, reply.elements.element(0)); });
  step([&] { grid.setCell(row, cPing, "..."); });
  step([&] { grid.setCell(row, cIP, reply.datagram.ip); });
  const std::uint32_t generation = grid.generation();
  PumpWait(c_.loop, pauseInReply);
  if (grid.generation() != generation) {
    return RowFate::gone;  // The number belongs to another row now.
  }
  step([&] { grid.setCell(row, cPort, std::to_string(reply.datagram.port)); });
  step([&] { grid.setCell(row, cMap, capitalizeWords(reply.mapName)); });
  step([&] {
    grid.setCell(row, cPlayers, reply.playersText);
    const std::string playing = split(reply.playersText, '/').front();
    grid.setCellColor(row, cPlayers, playing == "16" ? colors::red : colors::white);
  });
  step([&] { grid.setCell(row, cGameType, capitalizeWords(reply.gameType)); });
  step([&] { grid.setCell(row, cPassword, reply.passwordFlag); });
  return RowFate::shown;
}

void Sweep::writeCache(const Reply& reply) {
  c_.stores.WriteServerCache(
      c_.folder.path("\\servers.ini"), reply.row(),
      {reply.elements.element(0), reply.datagram.ip, std::to_string(reply.datagram.port),
       capitalizeWords(reply.mapName), reply.playersText, capitalizeWords(reply.gameType), reply.passwordFlag});
}

}  // namespace vantrel

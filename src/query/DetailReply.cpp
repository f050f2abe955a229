#include "query/DetailReply.h"

#include <algorithm>
#include <iterator>

#include "core/Numbers.h"
#include "query/modHaloFlags.h"

namespace vantrel {
namespace {

constexpr Color blueTeam = 16711680;

struct KeyLabel {
  const char* key;
  const char* text;
};

constexpr KeyLabel labels[] = {
    {"gamever", "Game Version"}, {"hostport", "Server Port"},      {"maxplayers", "Max. Players"},
    {"password", "Password"},    {"mapname", "Map Name"},          {"dedicated", "Dedicated"},
    {"gamemode", "Game Mode"},   {"game_classic", "Classic Mode"}, {"numplayers", "Current Players"},
    {"gametype", "Game Type"},   {"teamplay", "Team Play"},        {"gamevariant", "Game Variant"},
    {"fraglimit", "Frag Limit"},
};

std::string labelOf(const std::string& key) {
  const auto* const found =
      std::find_if(std::begin(labels), std::end(labels), [&](const KeyLabel& label) { return key == label.key; });
  return found == std::end(labels) ? key : found->text;
}

std::string shownValue(const std::string& value) {
  return value == "0" ? "False" : value == "1" ? "True" : value;
}

void addRow(ListView& list, const std::string& label, const std::string& value) {
  list.addRow(label);
  list.setCell(list.rowCount(), 2, value);
}

}  // namespace

DetailReply::DetailReply(std::string_view datagram, frmMain& window, Notices& notices, const DetailView& view)
    : e_(ParseStatusReply(datagram)), window_(window), notices_(notices), view_(view) {}

void DetailReply::show(const std::function<void(const std::string& mapFile)>& checkMap) {
  for (int i = 1; i < e_.count(); ++i) {
    gather(i);
    showScore();
  }
  if (password_ == "1") {
    notices_.ShowPopMsg("Password required on this server.");
  }
  showTeams();
  try {
    showMisc();
  } catch (const Failure&) {
    checkLastMap(checkMap);
    throw;
  }
  checkLastMap(checkMap);
  showPlayers();
  window_.lblData.caption.set(e_.element(0));
  showRules();
  showSummary();
}

// Each map of the reply would be looked for in turn, and the last one is what stays: a reply that names thousands would
// hold the window up.
void DetailReply::checkLastMap(const std::function<void(const std::string& mapFile)>& checkMap) const {
  if (!map_.empty()) {
    checkMap(map_);
  }
}

void DetailReply::gather(int i) {
  const std::string& key = e_.element(i);
  const auto value = [&]() -> const std::string& { return e_.element(i + 1); };
  if (key == "player_flags") {
    flags_ = value();
  } else if (key == "player_0") {
    at_.player = i;
  } else if (key == "score_0") {
    at_.score = i;
  } else if (key == "team_0") {
    at_.team = i;
  } else if (key == "score_t0") {
    red_ = toInteger16(value());
  } else if (key == "score_t1") {
    blue_ = toInteger16(value());
  } else if (key == "numplayers") {
    players_ = toInteger16(value());
    numplayers_ = value();
  } else if (key == "maxplayers") {
    maxplayers_ = value();
  } else if (key == "fraglimit") {
    at_.lastRow = i + 1;
  } else if (key == "password") {
    password_ = value();
  }
}

// On what is known so far: the last elements decide the caption, and the last step with a leader the colour behind it.
void DetailReply::showScore() const {
  Label& summary = window_.lblText[4];
  const std::string red = std::to_string(red_);
  const std::string blue = std::to_string(blue_);
  if (blue_ < red_) {
    summary.caption.set("Red is winning: " + red + " - " + blue);
    summary.backColor.set(colors::red);
  } else if (blue_ > red_) {
    summary.caption.set("Blue is winning: " + blue + " - " + red);
    summary.backColor.set(blueTeam);
  } else {
    summary.caption.set(players_ == 0 ? "This server is empty." : "Teams are Tied at " + red);
  }
}

void DetailReply::showTeams() const {
  addRow(window_.ListView3, "Red", std::to_string(red_));
  addRow(window_.ListView3, "Blue", std::to_string(blue_));
}

void DetailReply::showMisc() {
  for (int i = 1; i <= at_.lastRow;) {
    if (e_.element(i).empty()) {
      ++i;
      continue;
    }
    const std::string label = labelAt(i);
    window_.ListView1.addRow(label);
    const int row = window_.ListView1.rowCount();
    const std::string value = shownValue(e_.element(i + 1));
    // The port that was asked is the one that people need.
    window_.ListView1.setCell(row, 2, label == "Server Port" ? window_.txtPort.text.get() : value);
    i += 2;
  }
}

std::string DetailReply::labelAt(int i) {
  const std::string& key = e_.element(i);
  const auto value = [&]() -> const std::string& { return e_.element(i + 1); };
  if (key == "mapname") {
    window_.lblText[6].caption.set(value());
    map_ = value() + ".map";
  } else if (key == "numplayers") {
    window_.lblText[9].caption.set(std::to_string(toInteger16(value())));
  } else if (key == "gametype") {
    window_.lblText[7].caption.set(value());
  } else if (key == "gamevariant") {
    window_.lblText[8].caption.set(value());
  } else if (key == "player_flags") {
    flags_ = value();
  }
  return labelOf(key);
}

// The reply tells all names, then all scores, the round trips, which nobody needs, and the teams, each in the order of
// the places in the game.
void DetailReply::showPlayers() const {
  ListView& list = window_.ListView2;
  std::string team;
  int score = at_.score + 1;
  int side = at_.team + 1;
  for (int name = at_.player + 1; at_.player > 0 && name <= at_.score - 1; name += 2, score += 2, side += 2) {
    const std::string& told = e_.element(side);
    team = told == "1" ? "Blue" : told == "0" ? "Red" : team;
    list.addRow(e_.element(name));
    list.setCell(list.rowCount(), 2, e_.element(score));
    list.setCell(list.rowCount(), 3, team);
  }
  list.sort.set({list.sort.get().column, SortOrder::descending, true});
  if (list.rowCount() == 0) {
    list.addRow("0 Players");
  }
}

void DetailReply::showRules() const {
  const modHaloFlags::Flags flags = modHaloFlags::readFlags(flags_);
  for (const modHaloFlags::FlagField& field : modHaloFlags::playerFields()) {
    addRow(window_.ListView4, field.label, field.word(field.value(flags.player)));
  }
  for (const modHaloFlags::FlagField& field : modHaloFlags::vehicleFields()) {
    addRow(window_.ListView5, field.label, field.word(field.value(flags.vehicle)));
  }
  const modHaloFlags::FlagField& killing = modHaloFlags::teamKilling();
  window_.lblText[10].caption.set(killing.word(killing.value(flags.player)));
}

double DetailReply::players() const {
  return toNumber(numplayers_);
}

double DetailReply::maxPlayers() const {
  return toNumber(maxplayers_);
}

void DetailReply::showSummary() const {
  window_.lblText[9].caption.set(numplayers_ + " / " + maxplayers_ + " players");
  const bool full = players() >= maxPlayers();
  view_.showTitle(e_.element(0) + " - " + numplayers_ + "/" + maxplayers_ + " players " +
                  (full ? "- Server is full. " : ""));
}

}  // namespace vantrel

#include "export/ServerReport.h"

#include "core/FailureStyles.h"
#include "core/Text.h"
#include "export/FileDialog.h"

namespace vantrel {
namespace {

constexpr const char* templateFile = "\\gameinfo\\export.htm";
constexpr const char* reportFile = "\\gameinfo\\1234.html";
constexpr const char* nobody = "0 Players";
constexpr std::size_t longestLine = 1 << 18;      // bytes; what is longer stays as it is
constexpr std::size_t mostGrowth = 1 << 18;       // bytes; a line that is full of placeholders grows no further
constexpr int mostBlocks = 16;                    // of a team on one line
constexpr std::size_t largestReport = 64U << 20;  // bytes
const std::string otherPlace(2, '\0');            // stands for the same placeholder further to the right

std::string hex(unsigned char code) {
  constexpr const char* digits = "0123456789ABCDEF";
  return std::string("%") + digits[code / 16] + digits[code % 16];
}

}  // namespace

struct ServerReport::Team {
  std::string placeholder;
  std::string name;       // "Red"
  std::string lower;      // "red"
  std::string before[2];  // the name in an even and in an odd row
  std::string behind;     // it
  std::string nobodyText;
  const char* captures;  // how the score of each game type begins
  const char* others;
};

std::string reportQueryEscape(const std::string& text) {
  const std::string paired = replaceAll(text, "  ", " ");
  std::string escaped;
  for (const char c : trimSpaces(paired)) {
    const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
                         c == '_' || c == '.' || c == '~';
    escaped += isPlain ? std::string(1, c) : hex(static_cast<unsigned char>(c));
  }
  return escaped;
}

ServerReport::ServerReport(const Context& context) : c_(context) {
  c_.commands.add(command::exportSummary, [this] { showServerReport(); });
}

void ServerReport::showServerReport() {
  if (c_.mainWindow.ListView4.rowCount() == 0) {
    c_.notices.popUpBalloon("Please query a server first.", "");
    return;
  }
  if (!c_.folder.AppFileExists(templateFile)) {
    return;
  }
  try {
    makeServerReport(reportFile);
  } catch (const Failure& failure) {
    c_.dialogs.showMessage("", "The server report could not be made.\r\n" + failure.description);
    return;
  }
  GShell(c_.shell, c_.folder.path(reportFile));
}

void ServerReport::makeServerReport(const std::string& output) {
  const std::string page = c_.files.read(c_.folder.path(templateFile));
  std::string report;
  std::vector<std::string> lines = split(page, '\n');
  if (lines.back().empty()) {
    lines.pop_back();  // A line end at the end of the file begins no further line.
  }
  for (std::string& line : lines) {
    if (report.size() > largestReport) {
      throw failures::outOfMemory();
    }
    if (line.ends_with('\r')) {
      line.pop_back();
    }
    report += fill(line) + "\r\n";
  }
  SaveTextFile(c_.files, report, c_.folder.path(output));
}

std::string ServerReport::fill(const std::string& line) const {
  if (line.find('%') == std::string::npos || line.size() > longestLine) {
    return line;
  }
  static const Team red{"%SERVER_RPLAYERS", "Red", "red", {" ", " "}, " ", "No players on red team.", "  ", "  "};
  static const Team blue{"%SERVER_BPLAYERS",         "Blue", "blue", {"&nbsp; ", "&nbsp;  "}, " &nbsp;",
                         "No players on blue team.", "",     " "};
  std::string filled = line;
  for (const Placeholder& each : placeholders()) {
    const std::string name = each.name;
    if (filled.find(name) == std::string::npos) {
      continue;
    }
    if (name == red.placeholder) {
      filled = teamBlocks(filled, red);
    } else if (name == blue.placeholder) {
      filled = teamBlocks(filled, blue);
    } else if (name == "%SERVER_PLAYERS") {
      filled = playerList(filled);
    } else {
      filled = replaceUpTo(line.size() + mostGrowth, filled, name, each.value(*this));
    }
  }
  return filled;
}

const std::vector<ServerReport::Placeholder>& ServerReport::placeholders() {
  using Report = const ServerReport&;
  static const auto row = [](const char* name, ListView frmMain::*list, int number) {
    return Placeholder{name, [list, number](Report r) { return (r.c_.mainWindow.*list).cell(number, 2); }};
  };
  static const auto address = [](Report r) {
    return r.c_.mainWindow.txtIP.text.get() + ":" + r.c_.mainWindow.txtPort.text.get();
  };
  static const auto serverName = [](Report r) { return r.c_.mainWindow.lblData.caption.get(); };
  static const std::vector<Placeholder> all = {
      row("%SERVER_RSCORE", &frmMain::ListView3, 1),
      {"%SERVER_URL", [](Report r) { return "<a href=halo://" + address(r) + "/>" + serverName(r) + "</a>"; }},
      {"%SERVER_JOIN_URL", [](Report r) { return "<a href=halo://" + address(r) + "/join>[Join Server]</a>"; }},
      {"%SERVER_NAME", [](Report r) { return serverName(r); }},
      row("%SERVER_BSCORE", &frmMain::ListView3, 2),
      row("%SERVER_VRESPAWN", &frmMain::ListView5, 1),
      row("%SERVER_RVEH", &frmMain::ListView5, 2),
      row("%SERVER_BVEH", &frmMain::ListView5, 3),
      row("%SERVER_LIVES", &frmMain::ListView4, 1),
      row("%SERVER_WEAPONS", &frmMain::ListView4, 2),
      row("%SERVER_TKPEN", &frmMain::ListView4, 4),
      row("%SERVER_TK", &frmMain::ListView4, 3),
      row("%SERVER_RESPAWN", &frmMain::ListView4, 5),
      row("%SERVER_SPEN", &frmMain::ListView4, 6),
      row("%SERVER_RADAR", &frmMain::ListView4, 7),
      row("%SERVER_CFRIENDS", &frmMain::ListView4, 8),
      row("%SERVER_CFLAGS", &frmMain::ListView4, 9),
      row("%SERVER_HEALTH", &frmMain::ListView4, 10),
      row("%SERVER_INVIS", &frmMain::ListView4, 11),
      row("%SERVER_EQUIP", &frmMain::ListView4, 12),
      row("%SERVER_NADES", &frmMain::ListView4, 13),
      row("%SERVER_SHIELDS", &frmMain::ListView4, 14),
      row("%SERVER_GROWTH", &frmMain::ListView4, 15),
      row("%SERVER_OMOUT", &frmMain::ListView4, 16),
      {"%SERVER_RPLAYERS", {}},
      {"%SERVER_BPLAYERS", {}},
      {"%SERVER_PLAYERS", {}},
      row("%SERVER_GAMEVER", &frmMain::ListView1, 1),
      row("%SERVER_PORT", &frmMain::ListView1, 2),
      row("%SERVER_PMAX", &frmMain::ListView1, 3),
      row("%SERVER_PW", &frmMain::ListView1, 4),
      {"%SERVER_MAP",
       [](Report r) {
         const std::string map = r.c_.mainWindow.ListView1.cell(5, 2);
         return "<a href=halo://map/" + map + ">" + map + "</a>";
       }},
      row("%SERVER_DEDICATED", &frmMain::ListView1, 6),
      row("%SERVER_GMODE", &frmMain::ListView1, 7),
      row("%SERVER_CMODE", &frmMain::ListView1, 8),
      {"%SERVER_PCOUNT", [](Report r) { return r.c_.mainWindow.lblText[9].caption.get(); }},
      row("%SERVER_GTYPE", &frmMain::ListView1, 10),
      row("%SERVER_TPLAY", &frmMain::ListView1, 11),
      row("%SERVER_GVAR", &frmMain::ListView1, 12),
      row("%SERVER_MAXFRAGS", &frmMain::ListView1, 13),
      {"%SERVER_DATE", [](Report r) { return r.c_.loop.generalDate(); }},
      row("%SERVER_DED", &frmMain::ListView1, 6),
      {"%SERVER_VTRLVER", [](Report r) { return r.c_.version.shortText(); }},
      {"%SERVER_NUMPLAYERS",
       [](Report r) { return r.isEmptyServer() ? "0" : std::to_string(r.c_.mainWindow.ListView2.rowCount()); }},
      {"%SERVER_BUTTON", [](Report r) { return r.button(); }},
      {"%SERVER_RCOUNT", [](Report r) { return std::to_string(r.countOf("Red")); }},
      {"%SERVER_BCOUNT", [](Report r) { return std::to_string(r.countOf("Blue")); }},
  };
  return all;
}

bool ServerReport::isEmptyServer() const {
  const ListView& list = c_.mainWindow.ListView2;
  return list.rowCount() > 0 && list.cell(list.rowsInOrder().front(), 1) == nobody;
}

int ServerReport::countOf(const std::string& team) const {
  const ListView& list = c_.mainWindow.ListView2;
  int count = 0;
  for (int row = 1; row <= list.rowCount(); ++row) {
    count += list.cell(row, 3) == team ? 1 : 0;
  }
  return count;
}

// Each block as if it were the only one on the line, from left to right.
std::string ServerReport::teamBlocks(std::string line, const Team& team) const {
  for (int block = 0; block < mostBlocks && line.find(team.placeholder) != std::string::npos; ++block) {
    if (line.find(otherPlace) != std::string::npos) {
      return teamBlock(line, team);
    }
    const std::size_t behind = line.find(team.placeholder) + team.placeholder.size();
    line = line.substr(0, behind) + replaceAll(line.substr(behind), team.placeholder, otherPlace);
    line = replaceAll(teamBlock(line, team), otherPlace, team.placeholder);
  }
  return line;
}

// The first row stands in place of the placeholder; it then comes to the end of the line, and there the next one goes.
std::string ServerReport::teamBlock(std::string line, const Team& team) const {
  const ListView& list = c_.mainWindow.ListView2;
  const std::size_t most = line.size() + mostGrowth;
  int counter = 1;
  for (const int row : list.rowsInOrder()) {
    if (list.cell(row, 3) != team.name) {
      continue;
    }
    const std::size_t odd = static_cast<std::size_t>(++counter % 2);
    line = replaceUpTo(most, line, team.placeholder,
                       std::string("<tr class=") + (odd == 1 ? "oddrow" : "evenrow") + "><td class=" + team.lower +
                           "team>" + team.before[odd] +
                           "<a href=halo://player/%URL_PLAYER_NAME title='Add %PLAYER_NAME to your Vantrel CE Buddy "
                           "List!'>%PLAYER_NAME</a>" +
                           team.behind + "</td><td class=" + team.lower +
                           "score>&nbsp;&nbsp; %PLAYER_INFO &nbsp;</td></tr>\r\n");
    std::string name = list.cell(row, 1);
    const std::string shown = name;
    line = replaceUpTo(most, line, "%URL_PLAYER_NAME", c_.urlEncode(name));
    line = replaceUpTo(most, line, "%PLAYER_NAME", shown);
    line = replaceUpTo(most, line, "%PLAYER_INFO", scoreText(list.cell(row, 2), team));
    line += team.placeholder;
  }
  line = "<table>" + line + "</table>";
  if (isEmptyServer()) {
    line = replaceUpTo(most, list.rowCount() == 1 ? team.placeholder : line, team.placeholder, team.nobodyText);
  }
  return replaceAll(line, team.placeholder, "");
}

std::string ServerReport::scoreText(const std::string& score, const Team& team) const {
  const std::string type = c_.mainWindow.ListView1.cell(10, 2);
  if (type == "CTF") {
    return std::string("<b>") + team.captures + score + " Flag Captures</b>";
  }
  const std::string start = "<b>  " + score;
  if (type == "Assault") {
    return start + " Flag Captures</b>";
  }
  if (type == "Slayer") {
    return start + " Kills</b>";
  }
  if (type == "King" || type == "Oddball") {
    return start + " Seconds</b>";
  }
  return std::string("<b>") + team.others + score + " Points</b>";
}

std::string ServerReport::playerList(std::string line) const {
  const std::string placeholder = "%SERVER_PLAYERS";
  const ListView& list = c_.mainWindow.ListView2;
  line = replaceUpTo(line.size() + mostGrowth, line, placeholder, "<ul> " + placeholder + "</ul>");
  if (list.rowCount() == 0 || (list.rowCount() == 1 && isEmptyServer())) {
    return replaceUpTo(line.size() + mostGrowth, line, placeholder, "No players are connected.");
  }
  const std::string type = c_.mainWindow.ListView1.cell(10, 2);
  const std::string tail = type == "CTF" || type == "Assault" ? " Flag Captures" : type == "Slayer" ? " Kills" : "";
  const std::size_t most = line.size() + mostGrowth;
  for (const int row : list.rowsInOrder()) {
    line =
        replaceUpTo(most, line, placeholder,
                    "<li> <b>" + list.cell(row, 1) + "</b> - (" + list.cell(row, 2) + tail + ") </li>" + placeholder);
  }
  return replaceAll(line, placeholder, "");
}

std::string ServerReport::button() const {
  const frmMain& window = c_.mainWindow;
  const std::string& site = c_.site.makerSite;
  return "<a href=" + site.substr(0, site.size() - (site.ends_with('/') ? 1 : 0)) +
         "/?zorbelname=" + reportQueryEscape(window.lblData.caption.get()) +
         "&zorbelserver=" + reportQueryEscape(window.txtIP.text.get() + ":" + window.txtPort.text.get()) +
         "><img src=images/vtrlce-button.gif alt='Download Vantrel CE!' border=0 vspacing=4 hspacing=4 "
         "align=left></a>";
}

}  // namespace vantrel

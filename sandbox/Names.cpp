#include "sandbox/Names.h"

#include <strings.h>

#include <initializer_list>
#include <iterator>
#include <string_view>

namespace vantrel::sandbox {
namespace {

constexpr const char* kTags[] = {"[ACORN]",   "-=Fjord=-", "{Kiln}", "|TX9|",    "<Nova>", "(Moth)",      "[=Rook=]",
                                 "::Ember::", "~Tide~",    "[0wl]",  "*Quartz*", "[B2B]",  "=[Lynx]=",    "|Brine|",
                                 "{Zest}",    "-Juniper-", "[MNT]",  "<<Flax>>", "(o_o)",  "\x95Onyx\x95"};
constexpr const char* kAdjectives[] = {"Silent",    "Crimson", "Amber",   "Northern", "Midnight", "Copper", "Lucky",
                                       "Frosty",    "Velvet",  "Iron",    "Golden",   "Stormy",   "Quiet",  "Electric",
                                       "Sleepy",    "Paper",   "Wooden",  "Cosmic",   "Salty",    "Rusty",  "Emerald",
                                       "Wandering", "Curious", "Thunder", "Pixel",    "Lonely",   "Brave",  "Sunny"};
constexpr const char* kNouns[] = {"Foxes",   "Harbour", "Lanterns", "Otters",   "Meadow",  "Comets",     "Falcons",
                                  "Anvil",   "Teapot",  "Orchard",  "Penguins", "Beacon",  "Rangers",    "Badgers",
                                  "Canyon",  "Kettle",  "Voyagers", "Garage",   "Llamas",  "Lighthouse", "Thicket",
                                  "Pancake", "Foundry", "Owls",     "Caravan",  "Marmots", "Turbines",   "Attic"};
constexpr const char* kThemes[] = {"CTF 24/7",       "Slayer Night",  "Snipers Only",  "New Maps",
                                   "All Welcome",    "Classic Maps",  "Race Track",    "Pistols & Grenades",
                                   "No Vehicles",    "Sunday League", "Rookies First", "Oddball Club",
                                   "Custom Maps",    "Public",        "Training",      "Bloodgulch 24/7",
                                   "King of Friday", "Low Ping",      "Fun House",     "Tournament"};
constexpr const char* kFarAway[] = {"Caf\xE9 Lumi\xE8re",
                                    "Bl\xE5"
                                    "b\xE6r CTF",
                                    "Stra\xDF"
                                    "e der F\xFC"
                                    "chse",
                                    "Se\xF1or Pi\xF1"
                                    "ata's Party",
                                    "\xC5ngstr\xF6m Arena",
                                    "\xABNuit \xC9toil\xE9"
                                    "e\xBB",
                                    "Sauna & L\xF6yly",
                                    "\x80"
                                    "5 Entry \x96 just kidding",
                                    "Kiwi\x99 Clubhouse",
                                    "Cora\xE7\xE3o de Lat\xE3o",
                                    "\x8Eiv\xE9 Sr\x9Ei\x9A"
                                    "te",
                                    "Sm\xF8rrebr\xF8"
                                    "d Slayer",
                                    "\x93The Quiet Room\x94",
                                    "Ni\xF1os del Faro",
                                    "\xBFQui\xE9n va?",
                                    "\xA1Vamos! \xB7 CTF"};
constexpr const char* kClassicMaps[] = {"bloodgulch", "sidewinder", "dangercanyon", "timberland"};
constexpr const char* kCustomMaps[] = {"lanternbay",    "ashenridge_v2",    "saltflats_b3",    "twin_kilns",
                                       "mirewood",      "quarry9",          "glasswater",      "kestrel_pass",
                                       "Moss Garden",   "oldharbour_final", "TinRoof",         "copper-basin",
                                       "hushvalley_ce", "Orbital Dock 7",   "fennmoor[night]", "pinecrest"};
constexpr const char* kSyllables[] = {"ott", "mar", "fen", "zu", "ka", "bri", "lo", "tavi", "quill", "no",  "pip",
                                      "ra",  "sol", "wex", "da", "mo", "yar", "ni", "gus",  "thal",  "ver", "umi"};

constexpr std::size_t kServerNameLength = 63;
constexpr std::size_t kPlayerNameLength = 11;
constexpr double kHostileShare = 0.15;

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) {
    text += part;
  }
  return text;
}

char anyCharacter(Random& random) {
  const auto byte =
      static_cast<unsigned char>(random.chance(0.03) ? random.between(1, 0x1F) : random.between(0x20, 0xFF));
  return byte == '\\' ? '/' : static_cast<char>(byte);
}

std::string anyText(Random& random, std::size_t longest) {
  std::string text(1 + random.below(longest), ' ');
  for (char& character : text) {
    character = anyCharacter(random);
  }
  return text;
}

std::string doubledBlanks(const std::string& text) {
  std::string result;
  for (const char character : text) {
    result.append(character == ' ' ? 2 : 1, character);
  }
  return result == text ? joined({text, "  ", text}) : result;
}

std::string coloured(Random& random, std::string text) {
  text.insert(text.size() / 2, 1, static_cast<char>(random.between(1, 0x1F)));
  text.insert(0, 1, static_cast<char>(random.between(1, 0x1F)));
  return text;
}

std::string hostile(Random& random, const std::string& pleasant, std::size_t longest) {
  std::string text;
  switch (random.below(6)) {
    case 0:
      text = std::string(1 + random.below(3), ' ') + pleasant;
      break;
    case 1:
      // The name is cut first, or its blanks would be what is cut off.
      text = pleasant.substr(0, longest - 2) + std::string(1 + random.below(2), ' ');
      break;
    case 2:
      text = doubledBlanks(pleasant);
      break;
    case 3:
      text = coloured(random, pleasant);
      break;
    default:
      text = anyText(random, longest);
  }
  return text.substr(0, longest);
}

std::string pleasantServerName(Random& random) {
  const std::string_view tag = random.pick(kTags);
  const std::string_view adjective = random.pick(kAdjectives);
  const std::string_view noun = random.pick(kNouns);
  const std::string_view theme = random.pick(kThemes);
  const std::string number = std::to_string(random.between(1, 9));
  switch (random.below(6)) {
    case 0:
      return joined({tag, " ", adjective, " ", noun});
    case 1:
      return joined({adjective, " ", noun, " - ", theme});
    case 2:
      return joined({tag, " ", theme, " #", number});
    case 3:
      return joined({"The ", adjective, " ", noun});
    case 4:
      return joined({random.pick(kFarAway), " #", number});
    default:
      return joined({adjective, noun, " | ", theme});
  }
}

std::string pleasantPlayerName(Random& random) {
  std::string name = joined({random.pick(kSyllables), random.pick(kSyllables)});
  if (random.chance(0.6)) {
    name[0] = static_cast<char>(name[0] - 'a' + 'A');
  }
  switch (random.below(6)) {
    case 0:
      return joined({"x_", name.substr(0, 7), "_x"});
    case 1:
      return joined({name.substr(0, 9), std::to_string(random.between(10, 99))});
    case 2:
      return joined({"[", std::string(1, static_cast<char>(random.between('A', 'Z'))), "]", name.substr(0, 8)});
    default:
      return name.substr(0, kPlayerNameLength);
  }
}

}  // namespace

std::string serverName(Random& random) {
  const std::string pleasant = pleasantServerName(random).substr(0, kServerNameLength);
  return random.chance(kHostileShare) ? hostile(random, pleasant, kServerNameLength) : pleasant;
}

std::string playerName(Random& random) {
  const std::string pleasant = pleasantPlayerName(random);
  return random.chance(kHostileShare) ? hostile(random, pleasant, kPlayerNameLength) : pleasant;
}

std::vector<std::string> customMaps() {
  return {std::begin(kCustomMaps), std::end(kCustomMaps)};
}

std::string mapName(Random& random) {
  return random.chance(0.6) ? random.pick(kClassicMaps) : random.pick(kCustomMaps);
}

std::string gameType(Random& random) {
  constexpr const char* usual[] = {"CTF", "CTF", "CTF", "Slayer", "Slayer", "Slayer", "Oddball", "King", "Race"};
  constexpr const char* odd[] = {"ctf", "Ctf", "slayer", "SLAYER", "oddBall", "KING", "race"};
  return random.chance(0.85) ? random.pick(usual) : random.pick(odd);
}

bool isAlwaysTeamPlay(const std::string& gameType) {
  return strcasecmp(gameType.c_str(), "CTF") == 0;
}

std::string gameVariant(Random& random, const std::string& gameType) {
  constexpr const char* prefixes[] = {"Team ", "Pro ", "Classic ", "Rapid ", "Sniper ", "Rocket "};
  return random.chance(0.5) ? gameType : joined({random.pick(prefixes), gameType});
}

}  // namespace vantrel::sandbox

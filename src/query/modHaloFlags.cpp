#include "query/modHaloFlags.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel::modHaloFlags {
namespace {

constexpr const char* none = "";  // a value that no word was made for

constexpr const char* noYes[] = {"No", "Yes"};
constexpr const char* penalties[] = {"None", "5 Seconds", "10 Seconds", "15 Seconds"};

constexpr const char* lives[] = {"Infinite Lives", "1 Life", "3 Lives", "5 Lives"};
constexpr const char* weapons[] = {"Regular Map Weapons", "Only Pistols",  "Only Rifles",           "Only Plasma Gun",
                                   "Only Sniper Rifle",   "No Sniping",    "Only Rocket Launchers", "Only Shotguns",
                                   "Short Range Weapons", "Human Weapons", "Covenant Weapons",      "Classic Weapons",
                                   "Heavy Weapons"};
constexpr const char* teamKills[] = {"Not Allowed", "Allowed", "Shield Only", "Explosives Only"};
constexpr const char* respawnTimes[] = {"Instantaneous", "5 Seconds", "10 Seconds", "15 Seconds"};
constexpr const char* radars[] = {"No", "All", none, "Team Only"};
constexpr const char* flagIndicators[] = {"Motion Tracker", "Nav Points", "None"};
constexpr const char* healths[] = {"50%", "100%", "150%", "200%", "300%", "400%"};
constexpr const char* equipments[] = {"Custom Equipment", "Default Equipment"};
// The bit that is set means a game without shields.
constexpr const char* shields[] = {"Yes", "No"};
constexpr const char* vehicleRespawns[] = {"Never",     "30 Seconds", "60 Seconds", "90 Seconds",
                                           "2 Minutes", "3 Minutes",  "5 Minutes"};
constexpr const char* vehicleSets[] = {"Default",         none,       "Warthogs",    "Ghosts", "Scorpions",
                                       "Rocket Warthogs", "Banshees", "Gun Turrets", "Custom"};

constexpr FlagField teamKillingField{"Team Killing", 25, 2, teamKills};

constexpr FlagField players[] = {
    {"Max. Lives", 0, 2, lives},
    {"Weapon Set", 15, 4, weapons},
    teamKillingField,
    {"Team Killing Penalty", 27, 2, penalties},
    {"Max. Respawn Time", 6, 2, respawnTimes},
    {"Suicide Penalty", 12, 2, penalties},
    {"Radar", 22, 2, radars},
    {"Friendly Indicators", 24, 1, noYes},
    {"Flag Indicators", 20, 2, flagIndicators},
    {"Max. Health", 2, 3, healths},
    {"Invisibility", 11, 1, noYes},
    {"Player Equipment", 19, 1, equipments},
    {"Infinite Grenades", 14, 1, noYes},
    {"Shield", 5, 1, shields},
    {"Max. Respawn Growth", 8, 2, penalties},
    {"Odd Man Out", 10, 1, noYes},
};

constexpr FlagField vehicles[] = {
    {"Vehicle Respawn", 0, 3, vehicleRespawns},
    {"Red Vehicles", 3, 4, vehicleSets},
    {"Blue Vehicles", 7, 4, vehicleSets},
};

}  // namespace

// The number is divided, not shifted: of a negative one the division cuts towards zero.
int FlagField::value(std::int32_t flags) const {
  return (flags / (1 << lowestBit)) & ((1 << width) - 1);
}

std::string FlagField::word(int value) const {
  return value >= 0 && static_cast<std::size_t>(value) < words.size() ? words[static_cast<std::size_t>(value)] : none;
}

std::span<const FlagField> playerFields() {
  return players;
}

std::span<const FlagField> vehicleFields() {
  return vehicles;
}

const FlagField& teamKilling() {
  return teamKillingField;
}

Flags readFlags(std::string_view text) {
  const std::vector<std::string> parts = split(text, ',');
  if (parts.size() < 2) {
    throw failures::subscriptOutOfRange();
  }
  return {toInteger32(parts[0]), toInteger32(parts[1])};
}

}  // namespace vantrel::modHaloFlags

#pragma once

#include <string>
#include <vector>

#include "sandbox/Random.h"

namespace vantrel::sandbox {

// Invented names, as bytes of code page 1252 without a backslash or a NUL, never empty. About 85 of 100 server and
// player names are such as people would choose; the others are legal and hostile: any byte of the code page, blanks in
// front, behind and doubled, control bytes as colour codes.

/// The name of a server, at most 63 bytes.
std::string serverName(Random& random);
/// The name of a player, at most 11 bytes.
std::string playerName(Random& random);

std::string mapName(Random& random);
/// The maps that a game does not come with.
std::vector<std::string> customMaps();
/// One of the five game types, in various capitals.
std::string gameType(Random& random);
bool isAlwaysTeamPlay(const std::string& gameType);
std::string gameVariant(Random& random, const std::string& gameType);

}  // namespace vantrel::sandbox

#pragma once

#include <string>
#include <string_view>

#include "sandbox/WorldPlan.h"

namespace vantrel::sandbox {

/// True for the two queries that a game server answers, both with the same reply: "\status" and "\".
bool isStatusQuery(std::string_view datagram);

/// The one datagram with which the server answers: a backslash, then keys and values separated by backslashes.
/// `maxplayers` stands before `numplayers`; all names of players come first, then all scores, pings and teams.
std::string statusReply(const GameServer& server);

}  // namespace vantrel::sandbox

#include "sandbox/StatusReply.h"

namespace vantrel::sandbox {
namespace {

class ReplyWriter {
 public:
  void add(std::string_view key, std::string_view value) { text_.append("\\").append(key).append("\\").append(value); }
  void add(std::string_view key, int value) { add(key, std::to_string(value)); }

  template <class Value>
  void addForEach(const std::vector<Player>& players, const std::string& key, Value Player::*value) {
    for (std::size_t i = 0; i < players.size(); ++i) {
      add(key + std::to_string(i), players[i].*value);
    }
  }

  std::string take() { return std::move(text_); }

 private:
  std::string text_;
};

void addRules(ReplyWriter& reply, const GameServer& server) {
  reply.add("hostname", server.hostname);
  reply.add("gamever", server.version);
  reply.add("hostport", server.hidesPort ? "" : std::to_string(server.endpoint.port));
  reply.add("maxplayers", static_cast<int>(server.maxPlayers));
  reply.add("password", server.locked ? "1" : "0");
  reply.add("mapname", server.mapName);
  reply.add("dedicated", server.dedicated ? "1" : "0");
  reply.add("gamemode", "openplaying");
  reply.add("game_classic", server.classic ? "1" : "0");
  reply.add("numplayers", static_cast<int>(server.players.size()));
  reply.add("gametype", server.gameType);
  reply.add("teamplay", server.teamPlay ? "1" : "0");
  reply.add("gamevariant", server.gameVariant);
  reply.add("fraglimit", server.fragLimit);
  reply.add("player_flags", std::to_string(server.playerFlags) + "," + std::to_string(server.vehicleFlags));
  reply.add("game_flags", std::to_string(server.gameFlags));
}

}  // namespace

bool isStatusQuery(std::string_view datagram) {
  return datagram == "\\status" || datagram == "\\";
}

std::string statusReply(const GameServer& server) {
  ReplyWriter reply;
  addRules(reply, server);
  reply.addForEach(server.players, "player_", &Player::name);
  reply.addForEach(server.players, "score_", &Player::score);
  reply.addForEach(server.players, "ping_", &Player::ping);
  reply.addForEach(server.players, "team_", &Player::team);
  if (server.teamPlay) {
    reply.add("team_t0", "Red");
    reply.add("team_t1", "Blue");
    reply.add("score_t0", server.teamScores[0]);
    reply.add("score_t1", server.teamScores[1]);
  }
  return reply.take();
}

}  // namespace vantrel::sandbox

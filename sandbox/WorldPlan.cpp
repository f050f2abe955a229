#include "sandbox/WorldPlan.h"

#include <cmath>
#include <numeric>

#include "sandbox/Names.h"
#include "sandbox/Random.h"

namespace vantrel::sandbox {
namespace {

// What a generator is for, so that no two of them give the same values.
enum Purpose : std::uint64_t { Addresses, Behaviours, Locks, Occupancies, Contents };

std::size_t partOf(std::size_t count, double share) {
  return static_cast<std::size_t>(std::llround(static_cast<double>(count) * share));
}

// The numbers from 0 to count - 1, shuffled. Whoever draws a rank below a part of the count belongs to that part.
std::vector<std::size_t> shuffledRanks(std::size_t count, Random random) {
  std::vector<std::size_t> ranks(count);
  std::iota(ranks.begin(), ranks.end(), std::size_t{0});
  for (std::size_t i = count; i > 1; --i) {
    std::swap(ranks[i - 1], ranks[random.below(i)]);
  }
  return ranks;
}

// Walks 127.16.0.0/12 with an odd step, which visits each of its 2^20 addresses once before it repeats one.
class AddressWalk {
 public:
  explicit AddressWalk(Random random)
      : step_(static_cast<std::uint32_t>(random.next()) | 1), offset_(static_cast<std::uint32_t>(random.next())) {}
  std::uint32_t at(std::size_t index) const {
    return 127u << 24 | 16u << 16 | ((static_cast<std::uint32_t>(index) * step_ + offset_) & 0xFFFFF);
  }

 private:
  std::uint32_t step_;
  std::uint32_t offset_;
};

struct FlagField {
  unsigned lowestBit;
  std::uint32_t values;  // how many of the field's values, from 0 on, have a meaning
};

constexpr FlagField kPlayerFields[] = {{0, 4},  {2, 6},   {5, 2},  {6, 4},  {8, 4},  {10, 2}, {11, 2}, {12, 4},
                                       {14, 2}, {15, 13}, {19, 2}, {20, 3}, {22, 2}, {24, 2}, {25, 4}, {27, 4}};
constexpr FlagField kVehicleFields[] = {{0, 7}, {3, 9}, {7, 9}};

template <class Fields>
std::uint32_t flags(const Fields& fields, Random& random) {
  std::uint32_t result = 0;
  for (const FlagField& field : fields) {
    // Many servers leave a rule as it comes. A few use values to which no rule belongs.
    const std::size_t limit = random.chance(0.05) ? field.values + 2 : field.values;
    result |= random.chance(0.5) ? 0 : static_cast<std::uint32_t>(random.below(limit)) << field.lowestBit;
  }
  return result;
}

void planRules(GameServer& server, Random& random) {
  server.mapName = mapName(random);
  server.gameType = gameType(random);
  server.gameVariant = gameVariant(random, server.gameType);
  server.teamPlay = isAlwaysTeamPlay(server.gameType) || random.chance(0.5);
  constexpr int fragLimits[] = {3, 5, 10, 15, 25, 50};
  server.fragLimit = random.pick(fragLimits);
  server.playerFlags = flags(kPlayerFields, random);
  server.vehicleFlags = flags(kVehicleFields, random);
  server.gameFlags = static_cast<std::uint32_t>(random.below(64));
}

void planPlayers(GameServer& server, std::size_t count, Random& random) {
  for (std::size_t i = 0; i < count; ++i) {
    server.players.push_back({playerName(random), random.between(0, server.fragLimit), random.between(15, 320),
                              server.teamPlay ? random.between(0, 1) : 0});
  }
  if (server.teamPlay && count > 0) {
    server.teamScores = {random.between(0, server.fragLimit), random.between(0, server.fragLimit)};
  }
}

// The rank walks through full, empty and other servers in turn, and so each of these has servers of eight places.
std::size_t placesAt(std::size_t rank, Random& random) {
  constexpr std::size_t unusual[] = {2, 4, 6, 10, 12, 14, 20};
  if (rank % 6 == 1) {
    return 8;
  }
  return rank % 12 == 5 ? random.pick(unusual) : 16;
}

std::size_t playersAt(std::size_t rank, std::size_t places, const WorldSettings& settings, Random& random) {
  const std::size_t full = partOf(settings.servers, settings.fullShare);
  if (rank < full) {
    return places;
  }
  return rank < full + partOf(settings.servers, settings.emptyShare) ? 0 : 1 + random.below(places - 1);
}

Behaviour behaviourAt(std::size_t rank, const WorldSettings& settings) {
  const std::size_t silent = partOf(settings.servers, settings.silentShare);
  if (rank < silent) {
    return Behaviour::Silent;
  }
  return rank < silent + partOf(settings.servers, settings.closedShare) ? Behaviour::Closed : Behaviour::Answers;
}

std::uint16_t portFor(Behaviour behaviour, const GamePorts& ports, Random& random) {
  const std::uint16_t port = random.chance(0.7) ? ports.open.front() : random.pick(ports.open);
  return behaviour == Behaviour::Closed ? ports.closed : port;
}

}  // namespace

GamePorts wantedPorts(const WorldSettings& settings) {
  GamePorts ports;
  if (settings.gamePort != 0) {
    std::iota(ports.open.begin(), ports.open.end(), settings.gamePort);
    ports.closed = static_cast<std::uint16_t>(settings.gamePort + 9);
  }
  return ports;
}

std::vector<GameServer> planServers(const WorldSettings& settings, const GamePorts& ports) {
  const auto generator = [&](Purpose purpose, std::size_t number) { return Random(settings.seed, purpose, number); };
  const AddressWalk addresses(generator(Addresses, 0));
  const auto behaviours = shuffledRanks(settings.servers, generator(Behaviours, 0));
  const auto locks = shuffledRanks(settings.servers, generator(Locks, 0));
  const auto occupancies = shuffledRanks(settings.servers, generator(Occupancies, 0));
  constexpr const char* versions[] = {"1.08", "1.09", "1.10"};

  std::vector<GameServer> servers(settings.servers);
  for (std::size_t i = 0; i < servers.size(); ++i) {
    Random random = generator(Contents, i);
    GameServer& server = servers[i];
    server.behaviour = behaviourAt(behaviours[i], settings);
    server.endpoint = {addresses.at(i), portFor(server.behaviour, ports, random)};
    server.latency = std::chrono::milliseconds(
        random.between(static_cast<int>(settings.latencyLow.count()), static_cast<int>(settings.latencyHigh.count())));
    server.hostname = serverName(random);
    server.version = random.pick(versions);
    server.locked = locks[i] < partOf(settings.servers, settings.lockedShare);
    server.dedicated = random.chance(0.9);
    server.classic = random.chance(0.1);
    server.hidesPort = random.chance(0.03);
    planRules(server, random);
    server.maxPlayers = placesAt(occupancies[i], random);
    planPlayers(server, playersAt(occupancies[i], server.maxPlayers, settings, random), random);
  }
  return servers;
}

}  // namespace vantrel::sandbox

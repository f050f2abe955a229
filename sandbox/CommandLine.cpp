#include "sandbox/CommandLine.h"

#include <charconv>
#include <functional>
#include <limits>
#include <map>
#include <stdexcept>
#include <string_view>

namespace vantrel::sandbox {
namespace {

[[noreturn]] void refuse(const std::string& text) {
  throw std::invalid_argument(text);
}

template <class Number>
Number numberFrom(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    refuse("\"" + std::string(text) + "\" is not a number that can be used here");
  }
  return number;
}

std::chrono::milliseconds millisecondsFrom(std::string_view text) {
  return std::chrono::milliseconds(numberFrom<std::uint32_t>(text));
}

void setLatency(CommandLine& line, const std::string& value) {
  const std::size_t dash = value.find('-');
  line.settings.latencyLow = millisecondsFrom(value.substr(0, dash));
  line.settings.latencyHigh =
      dash == std::string::npos ? line.settings.latencyLow : millisecondsFrom(value.substr(dash + 1));
}

void setMaster(CommandLine& line, const std::string& value) {
  const std::size_t colon = value.find(':');
  line.settings.masterAddress = value.substr(0, colon);
  if (colon != std::string::npos) {
    line.settings.masterPort = numberFrom<std::uint16_t>(value.substr(colon + 1));
  }
}

void setWeb(CommandLine& line, const std::string& value) {
  const std::size_t colon = value.find(':');
  line.settings.webAddress = value.substr(0, colon);
  line.settings.webPort = colon == std::string::npos ? 8080 : numberFrom<std::uint16_t>(value.substr(colon + 1));
}

void setDuration(CommandLine& line, const std::string& value) {
  const double seconds = numberFrom<double>(value);
  if (!(seconds >= 0 && seconds <= 1e9)) {
    refuse("the time to run is a number of seconds");
  }
  line.duration = std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000));
}

using Setter = std::function<void(CommandLine&, const std::string&)>;

std::map<std::string, Setter> settersByOption() {
  return {
      {"--seed", [](auto& line, auto& value) { line.settings.seed = numberFrom<std::uint64_t>(value); }},
      {"--servers", [](auto& line, auto& value) { line.settings.servers = numberFrom<std::uint32_t>(value); }},
      {"--latency", setLatency},
      {"--loss", [](auto& line, auto& value) { line.settings.loss = numberFrom<double>(value); }},
      {"--silent", [](auto& line, auto& value) { line.settings.silentShare = numberFrom<double>(value); }},
      {"--closed", [](auto& line, auto& value) { line.settings.closedShare = numberFrom<double>(value); }},
      {"--master", setMaster},
      {"--port", [](auto& line, auto& value) { line.settings.gamePort = numberFrom<std::uint16_t>(value); }},
      {"--web", setWeb},
      {"--web-rate",
       [](auto& line, auto& value) { line.settings.webBytesPerSecond = numberFrom<std::uint64_t>(value); }},
      {"--log", [](auto& line, auto& value) { line.logFile = value; }},
      {"--for", setDuration},
  };
}

}  // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
  const auto setters = settersByOption();
  CommandLine line;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (*argument == "--table" || *argument == "--help") {
      (*argument == "--table" ? line.showsTable : line.showsHelp) = true;
      continue;
    }
    const auto setter = setters.find(*argument);
    if (setter == setters.end()) {
      refuse("unknown argument \"" + *argument + "\"");
    }
    if (std::next(argument) == arguments.end()) {
      refuse(*argument + " needs a value");
    }
    setter->second(line, *++argument);
  }
  checkSettings(line.settings);
  return line;
}

std::string usage() {
  return R"(Usage: vantrel-sandbox [OPTION]...
Runs a simulated network of game servers on the loopback addresses.

  --seed N                 the world to make (1)
  --servers N              how many game servers (200)
  --latency LOW-HIGH       milliseconds until a server answers (20-180)
  --loss P                 probability of a datagram to be lost (0)
  --silent P               share of servers that never answer (0.05)
  --closed P               share of servers whose port refuses datagrams (0.015)
  --master ADDRESS[:PORT]  where the master server listens (127.0.0.1:28900; port 0: any free one)
  --port P                 first port of the game servers (2302; 0: any free ones)
  --web ADDRESS[:PORT]     where the web mirror listens, which has the maps (none; port 8080, 0: any free one)
  --web-rate N             bytes of a map that the mirror sends in a second (as fast as can be)
  --log FILE               write every query and conversation to FILE (-: standard output)
  --table                  print all servers as a table
  --for SECONDS            end after this time (until interrupted)
  --help                   print this text
)";
}

}  // namespace vantrel::sandbox

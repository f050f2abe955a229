// The time of the functions that a sweep calls for each server.

#include <benchmark/benchmark.h>

#include <string>

#include "core/ProfileFile.h"
#include "query/MasterListReader.h"
#include "query/StatusReply.h"
#include "query/modGSAlgorithm.h"

namespace {

void validate(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(vantrel::GSValidate("q8Zt3v", "k7Wm2Q"));
  }
}
BENCHMARK(validate);

void parseReply(benchmark::State& state) {
  std::string reply = "\\hostname\\A server\\maxplayers\\16\\numplayers\\16\\gametype\\CTF";
  for (int i = 0; i < 16; ++i) {
    reply += "\\player_" + std::to_string(i) + "\\Somebody\\score_" + std::to_string(i) + "\\12";
  }
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(vantrel::ParseStatusReply(reply));
  }
}
BENCHMARK(parseReply);

void readMasterList(benchmark::State& state) {
  std::string list(static_cast<std::size_t>(state.range(0)) * 6, 'A');
  list += "\\final\\";
  for ([[maybe_unused]] auto _ : state) {
    vantrel::MasterListReader reader;
    benchmark::DoNotOptimize(reader.read(list));
  }
}
BENCHMARK(readMasterList)->Arg(500)->Arg(5000);

void setProfileValue(benchmark::State& state) {
  vantrel::ProfileFile file;
  for (int i = 1; i <= state.range(0); ++i) {
    file.set(std::to_string(i), "name", "A server");
  }
  int i = 0;
  for ([[maybe_unused]] auto _ : state) {
    file.set(std::to_string(1 + i++ % state.range(0)), "name", "Another server");
  }
}
BENCHMARK(setProfileValue)->Arg(500)->Arg(5000);

}  // namespace

BENCHMARK_MAIN();

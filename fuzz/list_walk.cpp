// The walk of a master server's list gives the same addresses however the network cuts the list into arrivals.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "query/MasterListReader.h"

namespace {

using vantrel::MasterListReader;
using vantrel::ServerAddress;

void append(std::vector<ServerAddress>& all, const std::vector<ServerAddress>& more) {
  all.insert(all.end(), more.begin(), more.end());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  const std::size_t piece = 1 + data[0] % 13;
  const std::string_view list(reinterpret_cast<const char*>(data + 1), size - 1);

  MasterListReader whole;
  std::vector<ServerAddress> expected = whole.read(list);
  append(expected, whole.finish());

  MasterListReader cut;
  std::vector<ServerAddress> found;
  for (std::size_t at = 0; at < list.size(); at += piece) {
    append(found, cut.read(list.substr(at, piece)));
  }
  append(found, cut.finish());
  if (found != expected || found.size() > list.size() / 6) {
    std::abort();
  }
  return 0;
}

#include "query/MasterListReader.h"

#include <algorithm>
#include <utility>

namespace vantrel {
namespace {

constexpr std::string_view endMark = "\\final\\";
constexpr std::size_t recordLength = 6;

// The length of the longest end of `bytes` that an end mark could begin with.
std::size_t undecidedLength(std::string_view bytes) {
  for (std::size_t length = std::min(bytes.size(), endMark.size() - 1); length > 0; --length) {
    if (endMark.starts_with(bytes.substr(bytes.size() - length))) {
      return length;
    }
  }
  return 0;
}

ServerAddress addressOf(std::string_view record) {
  const auto byte = [record](std::size_t i) { return static_cast<int>(static_cast<unsigned char>(record[i])); };
  ServerAddress address;
  address.ip = std::to_string(byte(0)) + "." + std::to_string(byte(1)) + "." + std::to_string(byte(2)) + "." +
               std::to_string(byte(3));
  address.port = byte(4) * 256 + byte(5);
  return address;
}

}  // namespace

std::vector<ServerAddress> MasterListReader::read(std::string_view bytes) {
  begun_ = begun_ || !bytes.empty();
  const std::string joined = undecided_ + std::string(bytes);
  std::string_view rest = joined;
  for (std::size_t at = rest.find(endMark); at != std::string_view::npos; at = rest.find(endMark)) {
    record_ += rest.substr(0, at);
    rest.remove_prefix(at + endMark.size());
  }
  const std::size_t decided = rest.size() - undecidedLength(rest);
  record_ += rest.substr(0, decided);
  undecided_ = rest.substr(decided);
  return takeRecords();
}

std::vector<ServerAddress> MasterListReader::finish() {
  record_ += undecided_;
  std::vector<ServerAddress> last = takeRecords();
  reset();
  return last;
}

void MasterListReader::reset() {
  undecided_.clear();
  record_.clear();
  begun_ = false;
}

std::vector<ServerAddress> MasterListReader::takeRecords() {
  std::vector<ServerAddress> records;
  std::size_t at = 0;
  for (; at + recordLength <= record_.size(); at += recordLength) {
    records.push_back(addressOf(std::string_view(record_).substr(at, recordLength)));
  }
  record_.erase(0, at);
  return records;
}

}  // namespace vantrel

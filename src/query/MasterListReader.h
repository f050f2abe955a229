// Takes a master server's list apart into addresses, however it is cut into arrivals.
//
// The list is a run of six-byte records and the end mark "\final\", which is deleted wherever it stands, once from left
// to right. What may yet turn out to be a record or an end mark waits for the next arrival.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct ServerAddress {
  std::string ip;  // dotted, without leading zeros
  int port = 0;    // 0 to 65535

  bool operator==(const ServerAddress& other) const = default;
};

class MasterListReader {
 public:
  // The records that are whole with these bytes, in order.
  std::vector<ServerAddress> read(std::string_view bytes);

  // What is whole now that no more bytes come: a record that ended like the beginning of an end mark. The rest is
  // dropped.
  std::vector<ServerAddress> finish();

  // Forgets what waits: the next bytes begin a list.
  void reset();

  // True before any byte of a list was read.
  bool untouched() const { return !begun_; }

 private:
  std::vector<ServerAddress> takeRecords();

  std::string undecided_;  // bytes that the end mark may begin with; shorter than it
  std::string record_;     // bytes of records, with no end mark in them
  bool begun_ = false;
};

}  // namespace vantrel

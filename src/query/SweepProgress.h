// How far a sweep has come: for the eye, and for what would hold it up.
#pragma once

#include <string>
#include <unordered_set>

#include "platform/Field.h"

namespace vantrel {

class SweepProgress {
 public:
  Field<int> listed{0};    // addresses that the master server has named
  Field<int> asked{0};     // of these, how many were sent a query
  Field<int> answered{0};  // of these, how many have answered
  Field<bool> walking{false};

  void begin() {
    waiting_.clear();
    walking.set(false);
    listed.set(0);
    asked.set(0);
    answered.set(0);
  }

  void noteQuery(const std::string& ip, int port) {
    waiting_.insert(ip + ":" + std::to_string(port));
    asked.set(asked.get() + 1);
  }

  // A second reply of the same server, and one that nobody asked for, count for nothing.
  void noteReply(const std::string& ip, int port) {
    if (waiting_.erase(ip + ":" + std::to_string(port)) > 0) {
      answered.set(answered.get() + 1);
    }
  }

 private:
  std::unordered_set<std::string> waiting_;
};

}  // namespace vantrel

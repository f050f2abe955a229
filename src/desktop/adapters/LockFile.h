// The lock of the running copy: a file that the system unlocks when its holder ends, in whatever way.
#pragma once

#include <string>

#include "platform/InstanceLock.h"

namespace vantrel {

class LockFile : public InstanceLock {
 public:
  // `folder`: where the file "lock" lies; made when the lock is taken.
  explicit LockFile(std::string folder) : folder_(std::move(folder)) {}
  LockFile(const LockFile&) = delete;
  LockFile& operator=(const LockFile&) = delete;
  ~LockFile() override;

  bool acquire() override;

 private:
  std::string folder_;
  int descriptor_ = -1;
};

}  // namespace vantrel

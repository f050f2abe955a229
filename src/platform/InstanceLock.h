// Face of the test whether another copy of the program runs for this user.
#pragma once

namespace vantrel {

class InstanceLock {
 public:
  virtual ~InstanceLock() = default;

  // True when this copy holds the lock from now on, until it ends in whatever way, or held it already; false when
  // another copy that is alive holds it. True as well where no lock can be had at all.
  virtual bool acquire() = 0;
};

}  // namespace vantrel

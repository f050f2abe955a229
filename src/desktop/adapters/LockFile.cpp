#include "desktop/adapters/LockFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "desktop/adapters/PrivateFolder.h"

namespace vantrel {

LockFile::~LockFile() {
  if (descriptor_ >= 0) {
    ::close(descriptor_);
  }
}

bool LockFile::acquire() {
  if (descriptor_ >= 0) {
    return true;
  }
  makePrivateFolder(folder_);
  const int descriptor = ::open((folder_ + "/lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (descriptor < 0) {
    return true;  // Where no lock can be had, a program that starts is worth more than one that is alone.
  }
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
    descriptor_ = descriptor;
    return true;
  }
  const bool held = errno == EWOULDBLOCK;
  ::close(descriptor);
  return !held;
}

}  // namespace vantrel

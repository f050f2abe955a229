#include "desktop/adapters/ZipUnzipLibrary.h"

#include <zip.h>

#include <cstdio>

#include "desktop/adapters/ZipRun.h"
#include "desktop/adapters/ZipTrouble.h"

namespace vantrel {

UnzipResult ZipUnzipLibrary::unzip(const std::vector<std::string>& include, const std::vector<std::string>& exclude,
                                   const UnzipOptions& options, const UnzipCallbacks& callbacks) {
  if (busy_) {
    return {static_cast<int>(ZipCode::busy), "Another archive is being unpacked."};
  }
  struct Busy {
    explicit Busy(bool& busy) : busy_(busy) { busy_ = true; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { busy_ = false; }
    bool& busy_;
  } busy(busy_);
  return ZipRun(loop_, options, callbacks).run(include, exclude);
}

UnzipVersion ZipUnzipLibrary::version() const {
  UnzipVersion version;
  const std::string text = zip_libzip_version();
  std::sscanf(text.c_str(), "%d.%d.%d", &version.major, &version.minor, &version.revision);
  version.extra = "libzip " + text;
  return version;
}

}  // namespace vantrel

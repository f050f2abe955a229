// Unpacks zip archives with libzip.
#pragma once

#include "platform/Loop.h"
#include "platform/UnzipLibrary.h"

namespace vantrel {

class ZipUnzipLibrary : public UnzipLibrary {
 public:
  // `loop` must outlive this.
  explicit ZipUnzipLibrary(Loop& loop) : loop_(loop) {}

  UnzipResult unzip(const std::vector<std::string>& include, const std::vector<std::string>& exclude,
                    const UnzipOptions& options, const UnzipCallbacks& callbacks) override;
  UnzipVersion version() const override;

 private:
  Loop& loop_;
  bool busy_ = false;
};

}  // namespace vantrel

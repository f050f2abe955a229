#include "core/AppFolder.h"

#include <algorithm>

namespace vantrel {

std::string AppFolder::path(std::string_view name) const {
  std::string tail(name);
  std::replace(tail.begin(), tail.end(), '\\', pathSeparator);
  return appDir_ + tail;
}

}  // namespace vantrel

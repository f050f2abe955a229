#pragma once

#include <cstddef>

#include "sandbox/WebFiles.h"

namespace vantrel::sandbox {

/// Puts all custom maps into the mirror's folders, each as a zip file of one map of `mapBytes`, and a few files that
/// are no maps.
void putMaps(WebFiles& files, std::size_t mapBytes);

}  // namespace vantrel::sandbox

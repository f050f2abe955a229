// What happens to the stores when the program starts.
#pragma once

#include "core/modFavesIni.h"

namespace vantrel {

// Reads the favorites, the mirrors and the picture of the favorites list, and creates each store that is missing but
// the server cache, which comes with the first reply of a sweep. A store that cannot be read counts as an empty one.
// True when the favorites are all that their store holds, false when it could not be read.
bool openStores(const StoreContext& context, modFavesIni& stores);

}  // namespace vantrel

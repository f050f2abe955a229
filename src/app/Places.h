// Where the program keeps its files.
#pragma once

#include <string>

namespace vantrel {

// The program's own folder when it can be written, else the user's data folder, which is made if need be. With no
// separator at its end. REQUIRES: an application object.
std::string findAppDir();

}  // namespace vantrel

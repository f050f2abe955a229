// Where the program keeps its files, and where the game may be.
#pragma once

#include <string>

namespace vantrel {

// The folders that the program works with, each without a separator at its end.
struct Places {
  std::string appDir;      // of the stores
  std::string configDir;   // of the settings and the lock; made when it is needed
  std::string winePrefix;  // of the Windows programs, among them the game; need not exist

  // Of the desktop's own files, in which the program is named for halo:// links. Empty: it is named nowhere.
  std::string dataHome = {};
  std::string configHome = {};
  std::string program = {};  // full path of the program itself
};

// The stores stand in the program's own folder when it can be written, else in the user's data folder. Makes nothing.
// REQUIRES: an application object.
Places findPlaces();
// Makes the folder of the stores if need be, and copies what was installed for it and is not there yet. A failure
// leaves out what failed.
void fillAppDir(const Places& places);

}  // namespace vantrel

#include "maps/MapCheck.h"

#include "core/AppFolder.h"
#include "core/Text.h"
#include "core/modReg.h"
#include "maps/MirrorState.h"

namespace vantrel {

void MapCheck::checkMap(const std::string& mapFile) {
  mirror_.lblMap.caption.set("");
  Button& download = window_.cmdMenu[command::downloadMap];
  if (window_.lblText[6].caption.get() == "[...]") {
    download.enabled.set(false);
    return;
  }
  mirror_.lblMap.caption.set(mapFile.substr(0, mapFile.find('.')));
  if (window_.txtHaloPath.text.get() == notFound) {
    return;
  }
  Label& state = window_.lblText2[11];
  const bool installed = isMapInstalled(lowerCase(mapFile));
  download.enabled.set(!installed);
  state.caption.set(installed ? " Map is installed. " : " Map is not installed: ");
  state.backColor.set(installed ? colors::black : colors::red);
  if (installed) {
    goToRest();
  }
}

// The buttons of a download under way are needed as long as it is.
void MapCheck::goToRest() {
  if (mirror_.transferring) {
    mirror_.lblMap.caption.set("");
  } else {
    cancelIt(mirror_);
  }
}

// A name comes from a server, and one with folders in it is no map's.
bool MapCheck::isMapInstalled(const std::string& mapFile) const {
  const bool isName = mapFile.find_first_of(std::string("/\\\0", 3)) == std::string::npos;
  return isName && PathExists(files_, window_.txtHaloPath.text.get() + "/maps/" + mapFile);
}

}  // namespace vantrel

// Whether the map that a server runs is installed, and the label and the button of the main window that tell.
#pragma once

#include <functional>
#include <string>

#include "core/MirrorWindows.h"
#include "core/frmMain.h"
#include "platform/Files.h"

namespace vantrel {

class MapCheck {
 public:
  // All of it must outlive this.
  MapCheck(frmMain& window, frmMirror& mirror, const Files& files) : window_(window), mirror_(mirror), files_(files) {}

  // Looks for the map of the server on show. `mapFile`: its name with ".map" at the end. From then on it is the wanted
  // map, unless it is installed.
  void checkMap(const std::string& mapFile);
  // True when a file of exactly this name, capitals apart, is among the game's maps.
  bool isMapInstalled(const std::string& mapFile) const;

 private:
  void goToRest();

  frmMain& window_;
  frmMirror& mirror_;
  const Files& files_;
};

}  // namespace vantrel

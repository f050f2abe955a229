// The list of the maps that a mirror has, out of which the user picks one to install.
#pragma once

#include <vector>

#include "maps/MapInstall.h"

namespace vantrel {

class MapPicker {
 public:
  // What the picker works on; all of it must outlive it.
  struct Context {
    Loop& loop;
    frmMirror& mirrorWindow;
    frmMaps& window;
    Notices& notices;
    MapCheck& check;
    MirrorList& mirrors;
    MirrorPages& pages;
    MapInstall& install;
  };

  explicit MapPicker(const Context& context);

 private:
  void listMaps();
  void showMaps(const std::string& index);
  void waitUntilClosed();
  void install();

  Context c_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

#include "maps/MapPicker.h"

#include "core/FailureStyles.h"
#include "core/PumpWait.h"
#include "core/Text.h"
#include "maps/MirrorIndex.h"
#include "maps/MirrorState.h"

namespace vantrel {
namespace {

constexpr int lookInterval = 50;  // milliseconds

}  // namespace

MapPicker::MapPicker(const Context& context) : c_(context) {
  connections_.push_back(c_.mirrorWindow.pressed.connect([this](MirrorCommand command) {
    if (command == MirrorCommand::mapList) {
      stopSilently([this] { listMaps(); });
    }
  }));
  connections_.push_back(c_.window.downloadPressed.connect([this] { stopSilently([this] { install(); }); }));
  connections_.push_back(c_.window.closed.connect([this] { c_.window.visible.set(false); }));
}

void MapPicker::listMaps() {
  const int attempt = c_.install.beginAttempt();
  const auto goesOn = [this, attempt] { return c_.install.isLatest(attempt); };
  disableButtons(c_.mirrorWindow);
  const std::string mirror = c_.mirrors.selected();
  if (mirror.empty()) {
    c_.notices.popUpBalloon("Please select a mirror to obtain map list!", "");
    return;
  }
  const auto index = c_.pages.read(mirror, {500, 1000, 2000}, goesOn);
  if (!index) {
    return;
  }
  c_.window.lblMirror.caption.set(mirror);
  showMaps(*index);
  waitUntilClosed();
  if (goesOn()) {
    enableButtons(c_.mirrorWindow);
  }
}

void MapPicker::showMaps(const std::string& index) {
  const std::vector<std::string> maps = indexMaps(index);
  c_.window.txtNew.text.set(index);
  c_.window.cmbMaps.items.set(maps);
  c_.window.cmbMaps.text.set(maps.empty() ? "" : maps.front());
  c_.window.lblCount.caption.set(std::to_string(maps.size()) + " Maps Listed in Index:");
  c_.window.cmdDL.enabled.set(!maps.empty());
  c_.window.visible.set(true);
}

void MapPicker::waitUntilClosed() {
  while (c_.window.visible.get() && !c_.loop.ending()) {
    PumpWait(c_.loop, lookInterval);
  }
}

void MapPicker::install() {
  const std::string name = c_.window.cmbMaps.text.get();
  c_.window.visible.set(false);
  if (c_.check.isMapInstalled(name + ".map")) {
    c_.notices.popUpBalloon("The selected map  is already installed!", name + ".map");
    PumpWait(c_.loop, 150);
    return;
  }
  ListBox& mirrors = c_.mirrorWindow.lstMirrors;
  for (int i = 0; i < mirrors.count(); ++i) {
    if (mirrors.line(i) == c_.window.lblMirror.caption.get()) {
      mirrors.select(i);
      break;
    }
  }
  c_.mirrorWindow.lblMap.caption.set(lowerCase(name));
  c_.mirrorWindow.visible.set(true);
  c_.install.downloadMap();
}

}  // namespace vantrel

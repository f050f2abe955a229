#include "core/StartAndEnd.h"

#include "core/FailureStyles.h"
#include "core/PumpWait.h"
#include "core/StoresAtStart.h"
#include "core/modSGrid.h"

namespace vantrel {
namespace {

constexpr int reminderDelay = 1000;  // milliseconds

void runIfAny(const std::function<void()>& step) {
  if (step) {
    stopSilently(step);
  }
}

}  // namespace

StartAndEnd::StartAndEnd(const StartContext& context, LoadingSteps steps)
    : c_(context), window_(context.stores.mainWindow), steps_(std::move(steps)) {
  splashOver_ = c_.splash.Timer1.tick.connect([this] {
    c_.splash.Timer1.switchOff();
    c_.splash.visible.set(false);
    showMain();
  });
  addWindow([this] {
    c_.splash.Timer1.switchOff();
    c_.splash.visible.set(false);
  });
}

void StartAndEnd::start() {
  if (over_) {
    return;
  }
  c_.splash.lblVer.caption.set("Vantrel CE " + c_.version.shortText());
  c_.splash.title.set("Zorbel's Vantrel  CE- Version " + c_.version.text());
  if (c_.settings.splash() == "1") {
    window_.chkSplash.value.set(1);
    c_.splash.visible.set(false);
    PumpWait(c_.stores.loop, 0);
    showMain();
    return;
  }
  c_.splash.picNewSplash.set(true);
  c_.splash.lblVersion.caption.set("Version " + c_.version.text());
  c_.splash.Label1.caption.set("Loading Vantrel... Please Wait ....");
  c_.splash.visible.set(true);
  c_.splash.Timer1.switchOn();
}

void StartAndEnd::showMain() {
  if (!over_) {
    load();
  }
  if (!over_) {
    window_.visible.set(true);
  }
}

void StartAndEnd::load() {
  window_.lblVer.caption.set("Vantrel CE " + c_.version.shortText());
  window_.title.set("Marrowind - Vantrel CE");
  runIfAny(steps_.layoutPanels);
  runIfAny(steps_.loadColors);
  c_.settings.LoadSettings();
  runIfAny(steps_.LoadTools);
  loadServerList();
  runIfAny(steps_.prepareFavorites);
  favoritesRead_ = openStores(c_.stores, c_.storeFiles);
  loaded_ = true;
  reportMissingGame();
  if (!over_ && !refuseSecondCopy()) {
    runIfAny(steps_.handOverLink);
  }
}

void StartAndEnd::loadServerList() {
  window_.grdServers.updating.set(false);
  SetupGrid(window_.grdServers);
  stopSilently([this] { c_.storeFiles.LoadBuddies(); });
  window_.grdServers.updating.set(true);
}

void StartAndEnd::reportMissingGame() {
  const bool known = window_.txtHaloPath.text.get() != notFound;
  window_.cmdMenu[command::launchGame].enabled.set(known);
  if (known) {
    return;
  }
  if (!window_.visible.get()) {
    PumpWait(c_.stores.loop, reminderDelay);
  }
  if (over_) {
    return;
  }
  c_.stores.notices.ShowPopMsg("Please locate the Halo CE executable.");
}

// A second copy must not write the stores: it does not go down the way that `close` goes.
bool StartAndEnd::refuseSecondCopy() {
  if (c_.lock.acquire()) {
    return false;
  }
  over_ = true;
  c_.stores.notices.ShowPopMsg("Vantrel CE is already running");
  secondCopy.fire();
  return true;
}

// Favorites that could not be read are not replaced by a list that is empty for that reason, nor those of a first copy
// by a second one's. A rewrite that is under way already goes on behind this one and is complete when the loop has
// ended.
void StartAndEnd::close() {
  if (over_) {
    return;
  }
  over_ = true;
  unloadAll();
  window_.visible.set(false);
  const bool ours = loaded_ && c_.lock.acquire();
  if (ours && (favoritesRead_ || window_.myFaves1.count() > 0)) {
    stopSilently([this] { c_.rewrites.saveFaves(c_.stores.folder.path("\\favorites.ini")); });
  }
  unloadAll();
  ended.fire();
}

void StartAndEnd::unloadAll() {
  for (std::size_t i = 0; i < unloads_.size(); ++i) {
    const std::function<void()> unload = unloads_[i];  // which may add another
    stopSilently(unload);
  }
}

}  // namespace vantrel

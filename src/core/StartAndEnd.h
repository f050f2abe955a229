// How the program comes up and goes down: the splash, the main window's loading in its fixed order, and its end.
#pragma once

#include <functional>
#include <vector>

#include "core/Settings.h"
#include "core/StoreRewrites.h"
#include "core/Version.h"
#include "core/frmSplash.h"
#include "platform/InstanceLock.h"

namespace vantrel {

// What other parts of the program do while the main window loads; each may be empty. They may throw failures, which
// end the part's own step and nothing else.
struct LoadingSteps {
  std::function<void()> layoutPanels;      // before the colours
  std::function<void()> loadColors;        // before the settings
  std::function<void()> LoadTools;         // behind the settings
  std::function<void()> prepareFavorites;  // before the stores
  std::function<void()> handOverLink;      // behind everything else, in a first copy only
};

// What the program starts with; all of it must outlive StartAndEnd.
struct StartContext {
  const StoreContext& stores;
  modFavesIni& storeFiles;
  StoreRewrites& rewrites;
  Settings& settings;
  frmSplash& splash;
  InstanceLock& lock;
  Version version;
};

class StartAndEnd {
 public:
  StartAndEnd(const StartContext& context, LoadingSteps steps);

  // Shows the splash, and the main window when the splash is over; the main window at once when no splash is wanted.
  // Nothing behind a close.
  void start();

  // Ends the program, in whatever state it is: side windows first, then the main window with its favorites written,
  // which takes a moment in which events run. A second call does nothing.
  void close();

  // Adds what takes a side window off the screen when the program ends. It may be called again.
  void addWindow(std::function<void()> unload) { unloads_.push_back(std::move(unload)); }

  Signal<> ended;       // the program has nothing more to do
  Signal<> secondCopy;  // another copy runs: this one has to end, and has told the user why

 private:
  void showMain();
  void load();
  void loadServerList();
  bool refuseSecondCopy();
  void reportMissingGame();
  void unloadAll();

  StartContext c_;
  frmMain& window_;
  LoadingSteps steps_;
  std::vector<std::function<void()>> unloads_;
  bool loaded_ = false;
  bool favoritesRead_ = false;
  bool over_ = false;  // the end has begun, or another copy was found
  Connection splashOver_;
};

}  // namespace vantrel

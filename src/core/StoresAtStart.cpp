#include "core/StoresAtStart.h"

#include "core/FailureStyles.h"

namespace vantrel {

bool openStores(const StoreContext& context, modFavesIni& stores) {
  const AppFolder& folder = context.folder;
  const SkippingSteps step;
  const bool favorites = step([&] {
    if (folder.AppFileExists("\\favorites.ini")) {
      stores.LoadFaves();
    } else {
      stores.NewFaves(folder.path("\\favorites.ini"));
    }
  });
  if (!folder.AppFileExists("\\buddies.ini")) {
    stores.NewBuddies(folder.path("\\buddies.ini"));
  }
  step([&] {
    if (folder.AppFileExists("\\mirrors.ini")) {
      stores.LoadMirrors();
    } else {
      stores.NewMirrors(folder.path("\\mirrors.ini"));
    }
  });
  const std::string settings = folder.path("\\settings.ini");
  if (!folder.AppFileExists("\\settings.ini")) {
    stores.NewSettings(settings);
    return favorites;
  }
  const std::string picture = context.profiles.ReadIniValue(settings, "FAVESPIC", "picture");
  if (!picture.empty()) {
    context.mainWindow.myFaves1.picture.set(picture);
  }
  return favorites;
}

}  // namespace vantrel

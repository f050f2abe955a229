// The user's favorites: the commands that add, show, change and delete them, their editor, and the picture behind them.
//
// The list is the working copy and favorites.ini follows it. A favorite has no identity beyond its number. The editor
// serves a new favorite and a change to one alike; which of the two is under way shows in `txtID` alone.
#pragma once

#include <string>
#include <vector>

#include "core/Commands.h"
#include "core/StoreRewrites.h"
#include "core/modFavesIni.h"
#include "platform/Dialogs.h"

namespace vantrel {

// What the favorites work on; all of it must outlive them.
struct FavoritesContext {
  const StoreContext& stores;
  modFavesIni& storeFiles;
  StoreRewrites& rewrites;
  Commands& commands;
  Dialogs& dialogs;
};

class Favorites {
 public:
  // Adds the commands of the favorites.
  explicit Favorites(const FavoritesContext& context);

  // True when a favorite has exactly this address and port; the user is told, and the favorite is selected then.
  bool IsFave(const std::string& hostname);
  void ClearFaveEditor();
  // Shows the selected favorite beside the list and makes it the current server.
  void ShowFave();

 private:
  void addCommands();
  void addCurrent();
  void requireEdited();
  void addEdited();
  void edit();
  void update();
  void remove();
  void choosePicture();
  void storePicture(const std::string& path);
  void writeUpdate();
  void makeCurrentServer(const std::string& hostname);
  void requireSelected(const std::string& text, const std::string& title) const;
  void stopUnless(bool condition, const std::string& text, const std::string& title) const;
  void enableClearing(Field<std::string>& text, const std::string& nothing);
  void clearBehind(const Commands::Step& wait);
  std::vector<std::string> editorTexts() const;
  std::string editedHostname() const;
  std::string file() const { return c_.stores.folder.path("\\favorites.ini"); }

  FavoritesContext c_;
  frmMain& window_;
  FavoritesList& list_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

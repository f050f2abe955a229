// The operations on one store file: reading its items, adding one, creating the file. docs/stores.md tells the formats.
//
// Counts are 16-bit: reading or adding to one that is no such number throws failure 13 or 6, and
// using a file that is there but cannot be read throws failure 75; nothing is changed then.
#pragma once

#include <cstdint>
#include <string>

#include "core/AppFolder.h"
#include "core/MirrorWindows.h"
#include "core/ProfileFiles.h"
#include "core/SideWindows.h"
#include "core/Site.h"
#include "core/frmMain.h"
#include "platform/Notices.h"

namespace vantrel {

// The sections and keys that tell the stores apart.
struct StoreFormat {
  const char* header;
  const char* countSection;
  const char* countKey;
};
inline constexpr StoreFormat favoritesFormat{"[VANTREL FAVORITES]", "FAVECOUNT", "Favorites"};
inline constexpr StoreFormat buddiesFormat{"[VANTREL MOFOS]", "MOFOCOUNT", "Buddies"};
inline constexpr StoreFormat mirrorsFormat{"[VANTREL MAP MIRRORS]", "MIRRORCOUNT", "Mirrors"};

// One row of the server list, as text.
struct ServerEntry {
  std::string name;
  std::string ip;
  std::string port;
  std::string mapname;
  std::string players;
  std::string gametype;
  std::string password;
};

// What the operations work on; all of it must outlive modFavesIni.
struct StoreContext {
  ProfileFiles& profiles;
  Loop& loop;
  Notices& notices;
  const AppFolder& folder;
  const Site& site;
  frmMain& mainWindow;
  frmBuddies& buddies;
  frmMirror& mirror;
};

class modFavesIni {
 public:
  explicit modFavesIni(const StoreContext& context) : c_(context) {}

  // Appends the items of favorites.ini to the favorites list.
  void LoadFaves();
  // Fills the buddy list from buddies.ini, but only when it is empty. While the file is being rewritten from the list,
  // the list is right as it is.
  void LoadBuddies();
  // How many buddies buddies.ini says that it has. Throws as `LoadBuddies`.
  std::int16_t storedBuddies();
  // Appends the mirrors of mirrors.ini to the mirror list, each with a slash at its end; texts too short are left out.
  void LoadMirrors();

  void AddFave(const std::string& file, const std::string& name, const std::string& password,
               const std::string& hostname, const std::string& gametype);
  // The current server as a new favorite.
  void AddFaveCurrent(const std::string& file);
  // A new favorite from the favorites editor.
  void AddFaveEdited(const std::string& file);
  // Overwrites favorite `txtID` from the editor; the count stays.
  void UpdateFave(const std::string& file);
  void AddBuddyEntry(const std::string& file, const std::string& buddyname, const std::string& lastserver);
  // Adds to buddies.ini; a failure is reported to the user and goes no further.
  void AddBuddy(const std::string& buddyname, const std::string& lastserver);
  void AddMirrorEntry(const std::string& file, const std::string& mirror);
  // Writes row `number` (1 or more, else failure 9) of the server list, and that it is the last one.
  void WriteServerCache(const std::string& file, std::int16_t number, const ServerEntry& server);

  void NewFaves(const std::string& file);
  void NewBuddies(const std::string& file);
  void NewMirrors(const std::string& file);
  void NewSettings(const std::string& file);

  // The number of items that a file says it has; 0 when it does not say.
  std::int16_t readCount(const std::string& file, const StoreFormat& format);

 private:
  void writeFave(const std::string& file, const std::string& section, const FavoriteItem& item);
  void writeFave(const std::string& file, const FavoriteItem& item);
  std::int16_t nextNumber(const std::string& file, const StoreFormat& format);
  void writeCount(const std::string& file, const StoreFormat& format, std::int16_t count);
  FavoriteItem editedFave() const;

  StoreContext c_;
};

}  // namespace vantrel

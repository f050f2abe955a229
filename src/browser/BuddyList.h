// The user's buddies: names that he wants to meet. Each player that a sweep sees is compared with them; a buddy who is
// on-line is announced, and the server where he plays is kept with him.
//
// The list is the working copy and buddies.ini follows it. What a sweep changes is written soon, and not once a buddy:
// a rewrite takes its time, and the sweep waits for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/Commands.h"
#include "core/StoreRewrites.h"
#include "core/modFavesIni.h"
#include "platform/cPopupMenu.h"

namespace vantrel {

class BuddyList {
 public:
  // What the list works on; all of it must outlive it.
  struct Context {
    const StoreContext& stores;
    modFavesIni& storeFiles;
    StoreRewrites& rewrites;
    Commands& commands;
    cPopupMenu& menu;
  };

  // Adds command 8, which shows and hides the window.
  explicit BuddyList(const Context& context);
  BuddyList(const BuddyList&) = delete;
  BuddyList& operator=(const BuddyList&) = delete;
  ~BuddyList();

  // Looks at a player of a reply; `address` is the server's "ip:port".
  void matchPlayer(const std::string& playerName, const std::string& address);

  // A new buddy from the list of a server's players, with that server or none.
  void addPlayer(const std::string& name, const std::string& lastserver);

  // Presses "Add".
  void clickBuddy() { press(frmBuddies::add); }

  // Writes what the sweep has changed, if anything, and returns when it is written. Events run meanwhile.
  void saveNow();

 private:
  void toggle();
  void show();
  void unload();
  void press(int button);
  void add();
  void remove();
  void find();
  void offerMenu(int number);
  void query(const std::string& server);
  bool isFileWhole(int wanted);
  void saveSoon();
  void indexNames();
  std::string file() const { return c_.stores.folder.path("\\buddies.ini"); }

  Context c_;
  frmBuddies& window_;
  FavoritesList& list_;
  // Names in lower case -> numbers; made anew when the list has changed.
  std::optional<std::unordered_map<std::string, std::vector<int>>> numbers_;
  bool unsaved_ = false;                // the list was changed since the last rewrite began
  std::optional<std::uint64_t> saved_;  // tick count of that; none yet
  std::uint64_t unsavedSince_ = 0;      // tick count
  TimerId timer_ = 0;
  std::vector<Connection> connections_;
};

}  // namespace vantrel

// The model of the item list that favorites and buddies stand in. Items number from 1.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"

namespace vantrel {

struct FavoriteItem {
  std::string gametype;
  std::string password;
  std::string hostname;
  std::string name;

  bool operator==(const FavoriteItem& other) const = default;
};

// The colours of a list and of the parts of an item; those of the system as long as nobody gives it any.
struct FavoritesLook {
  Color background = colors::systemFace;
  Color selection = colors::systemFace;  // behind the selected item
  Color name = colors::systemText;
  Color hostname = colors::systemText;
  Color gametype = colors::systemText;

  bool operator==(const FavoritesLook& other) const = default;
};

class FavoritesList {
 public:
  int count() const { return static_cast<int>(items_.size()); }

  // The number of the selected item; 0 or less when nothing is selected.
  int selected() const { return selected_; }
  // Selects an item; a number that is no item's selects nothing.
  void select(int number);

  // Makes item `number` the selected one and the one that `current` describes. Throws failure 9, with nothing changed,
  // when there is no such item.
  void makeCurrent(int number);
  // Item `number`, which stays as current or selected as it was. REQUIRES: 1 <= number <= count().
  const FavoriteItem& at(int number) const { return items_[static_cast<std::size_t>(number - 1)]; }
  // Empty texts before the first makeCurrent, and after the current item was removed.
  const FavoriteItem& current() const;

  // Appended at the end.
  void add(FavoriteItem item);
  // The later items move up by one; nothing is selected afterwards when the removed item was. Throws failure 9.
  void remove(int number);
  // Each throws failure 9 when there is no such item.
  void setHostname(int number, const std::string& hostname);
  void setName(int number, const std::string& name);
  void setPassword(int number, const std::string& password);
  void setGametype(int number, const std::string& gametype);
  void clear();

  // Path of the picture behind the items; empty for none.
  Field<std::string> picture;
  Field<FavoritesLook> look;

  Signal<int> itemClicked;  // item; fired by a view
  Signal<> changed;         // items or selection

 private:
  FavoriteItem& item(int number);

  std::vector<FavoriteItem> items_;
  int selected_ = 0;
  int current_ = 0;
};

}  // namespace vantrel

#include "platform/FavoritesList.h"

#include <cstddef>
#include <utility>

#include "platform/Failure.h"

namespace vantrel {

FavoriteItem& FavoritesList::item(int number) {
  if (number < 1 || number > count()) {
    throw failures::subscriptOutOfRange();
  }
  return items_[static_cast<std::size_t>(number - 1)];
}

void FavoritesList::select(int number) {
  selected_ = number >= 1 && number <= count() ? number : 0;
  changed.fire();
}

void FavoritesList::makeCurrent(int number) {
  item(number);
  current_ = number;
  select(number);
}

const FavoriteItem& FavoritesList::current() const {
  static const FavoriteItem none;
  return current_ >= 1 && current_ <= count() ? items_[static_cast<std::size_t>(current_ - 1)] : none;
}

void FavoritesList::add(FavoriteItem item) {
  items_.push_back(std::move(item));
  changed.fire();
}

void FavoritesList::remove(int number) {
  item(number);
  items_.erase(items_.begin() + (number - 1));
  const auto follow = [number](int held) { return held == number ? 0 : held > number ? held - 1 : held; };
  selected_ = follow(selected_);
  current_ = follow(current_);
  changed.fire();
}

void FavoritesList::setHostname(int number, const std::string& hostname) {
  item(number).hostname = hostname;
  changed.fire();
}

void FavoritesList::setName(int number, const std::string& name) {
  item(number).name = name;
  changed.fire();
}

void FavoritesList::setPassword(int number, const std::string& password) {
  item(number).password = password;
  changed.fire();
}

void FavoritesList::setGametype(int number, const std::string& gametype) {
  item(number).gametype = gametype;
  changed.fire();
}

void FavoritesList::clear() {
  items_.clear();
  selected_ = 0;
  current_ = 0;
  changed.fire();
}

}  // namespace vantrel

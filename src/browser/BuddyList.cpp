#include "browser/BuddyList.h"

#include <algorithm>
#include <utility>

#include "core/FailureStyles.h"
#include "core/Text.h"

namespace vantrel {
namespace {

// A rewrite holds a sweep up for a third of a second. So it waits until no buddy has been seen for a while, but not for
// ever, and the next one not before some time has passed.
constexpr std::uint64_t quietTime = 2000;        // milliseconds
constexpr std::uint64_t longestUnsaved = 20000;  // milliseconds, also from one rewrite to the next
constexpr std::size_t longestName = 254;         // as the file gives it back

// A name as the file gives it back: another one would match nobody after the next start.
std::string storable(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return name.substr(0, longestName);
}

}  // namespace

BuddyList::BuddyList(const Context& context)
    : c_(context), window_(context.stores.buddies), list_(context.stores.buddies.myFaves1) {
  c_.commands.add(command::toggleBuddies, [this] { toggle(); });
  connections_.push_back(window_.pressed.connect([this](int button) { press(button); }));
  connections_.push_back(window_.closed.connect([this] { unload(); }));
  connections_.push_back(list_.itemClicked.connect([this](int number) { stopSilently([&] { offerMenu(number); }); }));
  connections_.push_back(list_.changed.connect([this] { numbers_.reset(); }));
}

BuddyList::~BuddyList() {
  c_.stores.loop.stopTimer(timer_);
}

void BuddyList::toggle() {
  if (window_.visible.get()) {
    unload();
  } else {
    show();
  }
  c_.commands.clickIt(command::showServers);
}

void BuddyList::show() {
  stopSilently([this] { c_.storeFiles.LoadBuddies(); });
  window_.windowState.set(WindowState::normal);
  window_.visible.set(true);
}

void BuddyList::unload() {
  window_.txtBuddy.text.set("");
  window_.windowState.set(WindowState::normal);
  window_.visible.set(false);
}

void BuddyList::press(int button) {
  stopSilently([&] {
    if (button == frmBuddies::add) {
      add();
    } else if (button == frmBuddies::remove) {
      remove();
    } else {
      find();
    }
  });
}

// A list that was not read yet is read first: it would be taken for the whole file afterwards.
void BuddyList::add() {
  stopSilently([this] { c_.storeFiles.LoadBuddies(); });
  const std::string typed = window_.txtBuddy.text.get();
  const std::string name = storable(typed);
  list_.add({"", "", "", name});
  c_.storeFiles.AddBuddy(name, "");
  if (window_.txtBuddy.text.get() == typed) {  // A failure is told, and the user may have typed on meanwhile.
    window_.txtBuddy.text.set("");
  }
  if (!isFileWhole(list_.count())) {
    saveSoon();
  }
}

// Whether the file has as many buddies as it should.
bool BuddyList::isFileWhole(int wanted) {
  bool isWhole = false;
  stopSilently([&] { isWhole = c_.storeFiles.storedBuddies() == wanted; });
  return isWhole;
}

void BuddyList::remove() {
  list_.remove(list_.selected());
  unsaved_ = true;
  saveNow();
}

void BuddyList::find() {
  c_.stores.mainWindow.txtPlayer.text.set(window_.txtBuddy.text.get());
  c_.commands.clickIt(command::findPlayer);
  unload();
}

void BuddyList::addPlayer(const std::string& name, const std::string& lastserver) {
  stopSilently([this] { c_.storeFiles.LoadBuddies(); });
  const int wanted = list_.count() + 1;
  c_.storeFiles.AddBuddy(name, lastserver);
  window_.visible.set(true);
  window_.focusWanted.fire();
  const bool isBehind = unsaved_ || c_.rewrites.isUnderWay(file());
  if (!isBehind && isFileWhole(wanted)) {
    list_.clear();
    c_.storeFiles.LoadBuddies();
    return;
  }
  list_.add({"", "", lastserver, storable(name)});
  if (!isBehind) {
    saveSoon();
  }
}

// The menu lets events in, in which the list may change; what counts is the buddy on whom it was opened.
void BuddyList::offerMenu(int number) {
  if (number < 1 || number > list_.count()) {
    return;
  }
  const FavoriteItem buddy = list_.at(number);
  std::vector<std::string> entries{"Find Buddy Online"};
  if (!buddy.hostname.empty()) {
    entries.emplace_back("Query This Server");
  }
  const int chosen = c_.menu.Popup(entries);
  if (chosen == 1) {
    window_.txtBuddy.text.set(buddy.name);
    press(frmBuddies::find);
  } else if (chosen == 2) {
    query(buddy.hostname);
  }
}

void BuddyList::query(const std::string& server) {
  c_.stores.mainWindow.txtIP.text.set(server);
  unload();
  window_.focusLeft.fire();
  c_.commands.clickIt(command::queryServer);
  c_.commands.clickIt(command::showPlayers);
}

void BuddyList::indexNames() {
  if (numbers_) {
    return;
  }
  numbers_.emplace();
  for (int number = 1; number <= list_.count(); ++number) {
    if (!list_.at(number).name.empty()) {
      (*numbers_)[lowerCase(list_.at(number).name)].push_back(number);
    }
  }
}

// The numbers stay what they are: nothing in here waits. That a server becomes another one's changes no name.
void BuddyList::matchPlayer(const std::string& playerName, const std::string& address) {
  indexNames();
  const auto found = numbers_->find(lowerCase(playerName));
  if (found == numbers_->end()) {
    return;
  }
  auto numbers = std::move(*numbers_);
  for (const int number : numbers[lowerCase(playerName)]) {
    list_.setHostname(number, address);
    c_.stores.notices.ShowPopMsg(playerName + " is online.\r\nCheck your buddy list.");
  }
  numbers_ = std::move(numbers);
  saveSoon();
}

// In a turn of its own, so that the reply is not held up.
void BuddyList::saveSoon() {
  const std::uint64_t now = c_.stores.loop.tickCount();
  if (!std::exchange(unsaved_, true)) {
    unsavedSince_ = now;
  }
  const std::uint64_t latest = std::max(now, unsavedSince_ + longestUnsaved);
  const std::uint64_t earliest = saved_ ? *saved_ + longestUnsaved : 0;
  const std::uint64_t due = std::max(std::min(now + quietTime, latest), earliest);
  c_.stores.loop.stopTimer(timer_);
  timer_ = c_.stores.loop.startTimer(static_cast<int>(due - now), TimerKind::once, [this] {
    timer_ = 0;
    saveNow();
  });
}

void BuddyList::saveNow() {
  c_.stores.loop.stopTimer(std::exchange(timer_, 0));
  if (!std::exchange(unsaved_, false)) {
    return;
  }
  saved_ = c_.stores.loop.tickCount();
  bool isSaved = false;
  stopSilently([&] {
    c_.rewrites.saveBuddies(file());
    isSaved = true;
  });
  unsaved_ = unsaved_ || !isSaved;
}

}  // namespace vantrel

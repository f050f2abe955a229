#include "core/StoreRewrites.h"

#include "core/FailureStyles.h"
#include "core/PumpWait.h"

namespace vantrel {
namespace {

// Adds every item of a list in turn, each selected while it is added, and leaves the user's own selection as it was.
template <class Add>
void addEach(FavoritesList& list, Add add) {
  const int selected = list.selected();
  for (int i = 1; i <= list.count(); ++i) {
    list.makeCurrent(i);
    add(list.current());
  }
  if (selected > 0) {
    list.makeCurrent(selected);
  } else {
    list.select(0);
  }
}

}  // namespace

void StoreRewrites::rewrite(const std::string& file, const Steps& steps) {
  const auto [entry, first] = underWay_.try_emplace(file, false);
  if (!first) {
    entry->second = true;
    return;
  }
  try {
    do {
      underWay_[file] = false;
      rewriteOnce(file, steps);
    } while (underWay_[file]);
  } catch (...) {
    c_.profiles.dropDraft(file);
    underWay_.erase(file);
    throw;
  }
  underWay_.erase(file);
}

void StoreRewrites::rewriteOnce(const std::string& file, const Steps& steps) {
  const bool existed = c_.profiles.exists(file);
  const std::string draft = c_.profiles.beginDraft(file);
  if (existed) {
    PumpWait(c_.loop, steps.pauseAfterDeletion);
    steps.create(draft);
    PumpWait(c_.loop, 50);
  }
  PumpWait(c_.loop, 150);
  steps.addItems(draft);
  if (holdsMoreThanIsRead(file, steps.format)) {
    c_.profiles.keepCopy(file);
  }
  c_.profiles.commitDraft(file);
}

// True when a store that was read and is written again would lose something that its file holds.
bool StoreRewrites::holdsMoreThanIsRead(const std::string& file, const StoreFormat& format) {
  const ProfileFile& content = c_.profiles.content(file);
  if (!c_.profiles.isLoaded(file) || content.hasDoubledSection() ||
      (content.size() > 0 && !content.value(format.countSection, format.countKey))) {
    return true;
  }
  int count = 0;
  try {
    count = stores_.readCount(file, format);
  } catch (const Failure&) {
    return true;
  }
  for (int i = 1; i <= count; ++i) {
    if (content.longestValue(std::to_string(i)) > ProfileFiles::longestRead) {
      return true;
    }
  }
  return content.hasSectionBeyond(count);
}

void StoreRewrites::saveFaves(const std::string& m_File) {
  rewrite(m_File, {favoritesFormat, 100, [this](const std::string& draft) { stores_.NewFaves(draft); },
                   [this](const std::string& draft) {
                     addEach(c_.mainWindow.myFaves1, [&](const FavoriteItem& item) {
                       stores_.AddFave(draft, item.name, item.password, item.hostname, item.gametype);
                     });
                   }});
}

void StoreRewrites::saveBuddies(const std::string& b_File) {
  rewrite(b_File, {buddiesFormat, 100, [this](const std::string& draft) { stores_.NewBuddies(draft); },
                   [this](const std::string& draft) {
                     addEach(c_.buddies.myFaves1,
                             [&](const FavoriteItem& item) { stores_.AddBuddyEntry(draft, item.name, item.hostname); });
                   }});
}

void StoreRewrites::saveMirrors(const std::string& m2_File) {
  rewrite(m2_File, {mirrorsFormat, 200, [this](const std::string& draft) { stores_.NewMirrors(draft); },
                    [this, m2_File](const std::string& draft) { addMirrors(m2_File, draft); }});
}

// The sites that the file tells, by the mirrors' addresses as the list shows them.
std::map<std::string, std::string> StoreRewrites::readMirrorSites(const std::string& file) {
  std::map<std::string, std::string> sites;
  stopSilently([&] {
    const std::int16_t count = stores_.readCount(file, mirrorsFormat);
    for (int i = 1; i <= count; ++i) {
      const std::string mirror = c_.profiles.ReadIniValue(file, std::to_string(i), "Mirror");
      const std::string site = c_.profiles.ReadIniValue(file, std::to_string(i), "mirrorurl");
      sites.emplace(mirror.ends_with('/') ? mirror : mirror + "/", site);
    }
  });
  return sites;
}

// The list knows the mirrors' addresses only, so the addresses of their web sites come from the file itself.
void StoreRewrites::addMirrors(const std::string& file, const std::string& draft) {
  const std::map<std::string, std::string> sites = readMirrorSites(file);
  ListBox& list = c_.mirror.lstMirrors;
  const int selected = list.selected();
  for (int i = 0; i < list.count(); ++i) {
    list.select(i);
    stores_.AddMirrorEntry(draft, list.line(i));
    const auto site = sites.find(list.line(i));
    if (site != sites.end() && !site->second.empty()) {
      c_.profiles.WriteIniValue(draft, std::to_string(stores_.readCount(draft, mirrorsFormat)), "mirrorurl",
                                site->second);
    }
  }
  list.select(selected);
}

}  // namespace vantrel

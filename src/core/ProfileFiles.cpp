#include "core/ProfileFiles.h"

#include <utility>

#include "core/FailureStyles.h"

namespace vantrel {
namespace {

// A growing file is written once this share of it is new, so that a file which grows to n bytes costs no more than
// about 9 n bytes of writing whatever the number of changes.
constexpr std::size_t growthShare = 8;

bool isUnsaved(bool replaced, std::size_t changes) {
  return replaced || changes > 0;
}

}  // namespace

ProfileFiles::~ProfileFiles() {
  flush();
  for (const auto& [file, entry] : entries_) {
    loop_.stopTimer(entry.timer);
  }
}

ProfileFiles::Entry& ProfileFiles::entry(const std::string& file) {
  Entry& entry = entries_[file];
  // One look at the disk a millisecond is enough to notice what another program did.
  const std::uint64_t now = loop_.tickCount();
  if (!entry.draft && !entry.replaced && entry.checked != now) {
    entry.checked = now;
    stopSilently([&] { read(file, entry); });
  }
  return entry;
}

// Throws failure 75, with the entry unchanged, when the file is there and cannot be read.
void ProfileFiles::read(const std::string& file, Entry& entry) {
  const std::optional<FileStamp> stamp = files_.stamp(file);
  if (entry.read && stamp == entry.stamp) {
    return;
  }
  const std::string bytes = stamp ? files_.read(file) : std::string();
  ProfileFile content(bytes);
  // An item was numbered by what the file held before; now its number may be that of another one.
  if (entry.ownItems && !bytes.empty() && !entry.copy) {
    entry.copy = bytes;
  }
  for (const Change& change : entry.changes) {
    apply(content, change);
  }
  entry.content = std::move(content);
  entry.stamp = stamp;
  entry.read = true;
  entry.loaded = !stamp;
}

void ProfileFiles::apply(ProfileFile& content, const Change& change) {
  if (change.section.empty()) {
    content.appendLine(change.value);
  } else {
    content.set(change.section, change.key, change.value);
  }
}

std::string ProfileFiles::ReadIniValue(const std::string& file, std::string_view section, std::string_view key) {
  return entry(file).content.value(section, key).value_or("").substr(0, longestRead);
}

void ProfileFiles::WriteIniValue(const std::string& file, std::string_view section, std::string_view key,
                                 std::string_view value, WritePace pace) {
  change(file, {std::string(section), std::string(key), std::string(value)}, pace);
}

void ProfileFiles::appendLine(const std::string& file, std::string_view line) {
  change(file, {"", "", std::string(line)}, WritePace::everyTurn);
}

const ProfileFile& ProfileFiles::content(const std::string& file) {
  return entry(file).content;
}

void ProfileFiles::change(const std::string& file, Change change, WritePace pace) {
  Entry& held = entry(file);
  apply(held.content, change);
  if (held.draft) {
    return;
  }
  held.changedBytes += change.key.size() + change.value.size() + 3;
  held.ownItems = held.ownItems || pace == WritePace::everyTurn;
  remember(held, std::move(change));
  held.lastChange = loop_.tickCount();
  const bool grown = held.changedBytes * growthShare >= held.content.size();
  const bool soon = pace == WritePace::everyTurn || (grown && !held.failing);
  if (soon && !held.soon) {
    schedule(file, held, 0);
    held.soon = true;
  } else if (held.timer == 0) {
    schedule(file, held, quietTime);
  }
}

// The latest value of a key stands for the ones before it.
void ProfileFiles::remember(Entry& entry, Change change) {
  if (!change.section.empty()) {
    const auto [place, isNew] = entry.places.try_emplace(change.section + '\n' + change.key, entry.changes.size());
    if (!isNew) {
      entry.changes[place->second] = std::move(change);
      return;
    }
  }
  entry.changes.push_back(std::move(change));
}

void ProfileFiles::schedule(const std::string& file, Entry& entry, int milliseconds) {
  loop_.stopTimer(entry.timer);
  entry.timer = loop_.startTimer(milliseconds, TimerKind::once, [this, file] { writeWhenDue(file); });
  entry.soon = false;
}

void ProfileFiles::writeWhenDue(const std::string& file) {
  Entry& due = entries_[file];
  const bool wasSoon = due.soon;
  due.timer = 0;
  due.soon = false;
  const std::uint64_t quiet = loop_.tickCount() - due.lastChange;
  if (!wasSoon && quiet < quietTime) {
    schedule(file, due, quietTime - static_cast<int>(quiet));
  } else if (!write(file, due)) {
    schedule(file, due, retryTime);
  }
}

bool ProfileFiles::write(const std::string& file, Entry& entry) {
  if (entry.draft || !isUnsaved(entry.replaced, entry.changes.size())) {
    return true;
  }
  try {
    if (!entry.replaced) {
      read(file, entry);
    } else if (!entry.read && files_.stamp(file)) {
      files_.rename(file, freeCopyName(file));
    }
    if (entry.copy) {
      files_.replace(freeCopyName(file), *entry.copy);
      entry.copy.reset();
    }
    files_.replace(file, entry.content.bytes());
  } catch (const Failure&) {
    entry.failing = true;
    return false;
  }
  entry.stamp = files_.stamp(file);
  entry.read = true;
  entry.replaced = false;
  entry.failing = false;
  entry.ownItems = false;
  entry.changes.clear();
  entry.places.clear();
  entry.changedBytes = 0;
  return true;
}

bool ProfileFiles::flush() {
  bool complete = true;
  for (auto& [file, entry] : entries_) {
    complete = write(file, entry) && complete;
  }
  return complete;
}

std::string ProfileFiles::beginDraft(const std::string& file) {
  std::string name = file + ".draft";
  Entry& draft = entries_[name];
  draft.content = ProfileFile();
  draft.draft = true;
  return name;
}

void ProfileFiles::dropDraft(const std::string& file) {
  entries_.erase(file + ".draft");
}

bool ProfileFiles::isDrafted(const std::string& file) const {
  return entries_.contains(file + ".draft");
}

void ProfileFiles::commitDraft(const std::string& file) {
  Entry& held = entries_[file];
  if (entries_[file + ".draft"].content.size() == 0 && !exists(file)) {
    dropDraft(file);  // Of nothing, no file is made.
    return;
  }
  held.content = std::move(entries_[file + ".draft"].content);
  held.replaced = true;
  held.loaded = true;
  held.changes.clear();
  held.places.clear();
  held.changedBytes = 0;
  dropDraft(file);
  if (!write(file, held)) {
    schedule(file, held, retryTime);
  }
}

bool ProfileFiles::exists(const std::string& file) {
  const Entry& held = entry(file);
  return isUnsaved(held.replaced, held.changes.size()) || files_.stamp(file).has_value();
}

void ProfileFiles::requireReadable(const std::string& file) {
  if (!entry(file).read && !entry(file).draft && files_.stamp(file)) {
    throw failures::fileAccess();
  }
}

void ProfileFiles::noteLoaded(const std::string& file) {
  entry(file).loaded = true;
}

bool ProfileFiles::isLoaded(const std::string& file) {
  return entry(file).loaded;
}

std::string ProfileFiles::freeCopyName(const std::string& file) const {
  std::string copy = file + ".bak";
  for (int i = 2; i <= 9 && files_.stamp(copy); ++i) {
    copy = file + ".bak" + std::to_string(i);
  }
  return copy;
}

void ProfileFiles::keepCopy(const std::string& file) {
  Entry& held = entry(file);
  if (!held.copy) {
    held.copy = held.content.bytes();
  }
}

}  // namespace vantrel

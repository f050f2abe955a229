#include "desktop/adapters/ZipRun.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <system_error>

namespace vantrel {
namespace {

constexpr std::uint64_t eventInterval = 8;   // milliseconds
constexpr std::uint64_t wordInterval = 250;  // milliseconds, between two words on one member
constexpr std::uint64_t reserve = 16 << 20;  // bytes that are left free on a disk
// Maps shrink to a fifth of their size at best.
constexpr std::uint64_t mostUnpacked = 256 << 20;  // bytes, of an archive that shrinks to less than that
constexpr std::uint64_t mostTimes = 100;
constexpr const char* textControls = "\t\n\f\r\x1a";

std::uint64_t addUpTo(std::uint64_t sum, std::uint64_t more) {
  return more > std::numeric_limits<std::uint64_t>::max() - sum ? std::numeric_limits<std::uint64_t>::max()
                                                                : sum + more;
}

std::string megabytes(std::uint64_t bytes) {
  return std::to_string((bytes >> 20) + 1) + " MB";
}

bool isText(std::string_view block) {
  return std::all_of(block.begin(), block.end(), [](char c) {
    return static_cast<unsigned char>(c) >= ' ' ||
           (c != '\0' && std::string_view(textControls).find(c) != std::string_view::npos);
  });
}

// `last`: the character in front of the block, and then its own last one.
std::string withLineEnds(std::string_view block, char& last) {
  std::string text;
  for (const char c : block) {
    text += c == '\n' && last != '\r' ? "\r\n" : std::string(1, c);
    last = c;
  }
  return text;
}

UnzipMember rowOf(const ZipMember& member) {
  UnzipMember row;
  const std::size_t slash = member.name.find_last_of("/\\");
  row.name = slash == std::string::npos ? member.name : member.name.substr(slash + 1);
  row.folder = slash == std::string::npos ? "" : member.name.substr(0, slash);
  row.size = static_cast<std::uint32_t>(std::min<std::uint64_t>(member.size, UINT32_MAX));
  if (member.size > member.packedSize) {
    const double saved = static_cast<double>(member.size - member.packedSize) / static_cast<double>(member.size);
    row.ratio = static_cast<int>(saved * 100 + 0.5);
  }
  row.method = methodName(member.method);
  std::tm local{};
  row.date = ::localtime_r(&member.time, &local) == nullptr ? 0 : ::timegm(&local);
  row.crc = member.crc;
  row.flags = member.isEncrypted ? 64 : 0;
  return row;
}

}  // namespace

UnzipResult ZipRun::run(const Names& include, const Names& exclude) {
  try {
    archive_.emplace(options_.zipFile);
    select(include, exclude);
    if (options_.list) {
      listMembers();
      return result_;
    }
    if (!options_.testZip) {
      target_.emplace(options_.unzipFolder);
      target_->removeLeftOvers();
      checkRoom();
    }
    for (const ZipMember& member : members_) {
      take(member);
    }
  } catch (const ZipTrouble& trouble) {
    remember(trouble, "The archive");
  }
  return result_;
}

std::string ZipRun::comparable(std::string name) const {
  std::replace(name.begin(), name.end(), '\\', '/');
  return options_.caseSensitiveFileNames ? name : foldedName(name);
}

void ZipRun::select(const Names& include, const Names& exclude) {
  std::set<std::string> wanted;
  std::set<std::string> unwanted;
  for (const std::string& name : include) {
    wanted.insert(comparable(name));
  }
  for (const std::string& name : exclude) {
    unwanted.insert(comparable(name));
  }
  for (const ZipMember& member : archive_->members()) {
    const std::string name = comparable(member.name);
    if ((wanted.empty() || wanted.contains(name)) && !unwanted.contains(name)) {
      members_.push_back(member);
    }
  }
  if (members_.empty() && !wanted.empty()) {
    throw ZipTrouble{ZipCode::noMatch, "it has none of the members asked for", ZipReach::archive};
  }
}

void ZipRun::listMembers() {
  for (const ZipMember& member : members_) {
    if (callbacks_.message) {
      callbacks_.message(rowOf(member));
    }
  }
}

// Before anything is written. What the members say of their sizes is held against them later.
void ZipRun::checkRoom() const {
  std::error_code error;
  const std::uint64_t packed = std::filesystem::file_size(options_.zipFile, error);
  std::uint64_t unpacked = 0;
  for (const ZipMember& member : members_) {
    const ZipPlace place = placeOf(member);
    if (!place.isFolder && place.refusal.empty()) {
      unpacked = addUpTo(unpacked, member.size);
    }
  }
  if (unpacked > mostUnpacked && unpacked / mostTimes > packed) {
    throw ZipTrouble{ZipCode::target, "it would unpack to more than a hundred times its size", ZipReach::archive};
  }
  const std::uint64_t free = target_->freeBytes();
  if (addUpTo(unpacked, reserve) > free) {
    throw ZipTrouble{
        ZipCode::target,
        "there is not enough room: it needs " + megabytes(unpacked) + ", and " + megabytes(free) + " are free",
        ZipReach::archive};
  }
}

ZipPlace ZipRun::placeOf(const ZipMember& member) const {
  std::string name = member.name;
  if (options_.spaceToUnderscore) {
    std::replace(name.begin(), name.end(), ' ', '_');
  }
  ZipPlace place = placeOfMember(name, options_.useFolderNames ? ZipFolders::keep : ZipFolders::drop);
  if (place.refusal.empty() && member.isLink) {
    place.refusal = "it is a link";
  }
  return place;
}

// A member that cannot be placed or read does not keep the others from it.
void ZipRun::take(const ZipMember& member) {
  const std::string shown = "\"" + shownName(member.name) + "\"";
  try {
    if (callbacks_.service && callbacks_.service(member.name, rowOf(member).size)) {
      throw stoppedTrouble();
    }
    const ZipPlace place = placeOf(member);
    if (!place.refusal.empty()) {
      throw ZipTrouble{ZipCode::passedOver, place.refusal};
    }
    if (!place.isFolder) {
      unpack(member, place);
    } else if (target_ && !place.parts.empty()) {
      target_->makeFolder(place.parts);
    }
  } catch (const ZipTrouble& trouble) {
    remember(trouble, shown);
    print(shown + ": " + trouble.why);
    if (trouble.reach == ZipReach::archive) {
      throw;
    }
  }
}

void ZipRun::unpack(const ZipMember& member, const ZipPlace& place) {
  if (!target_) {
    copy(member, nullptr);
    return;
  }
  std::string path;
  for (const std::string& part : place.parts) {
    path += "/" + foldedName(part);
  }
  if (placed_.contains(path)) {
    throw ZipTrouble{ZipCode::passedOver, "another member has its name"};
  }
  const auto found = target_->find(place.parts);
  if (fateOf(member, found) == Fate::keep) {
    print("\"" + shownName(place.parts.back()) + "\" is there already");
    return;
  }
  const std::unique_ptr<ZipPartFile> file = target_->begin();
  copy(member, file.get());
  file->finish(member.time);
  if (target_->place(*file, place.parts, found, found ? IfThere::replace : IfThere::keep)) {
    placed_.insert(path);
  }
}

ZipRun::Fate ZipRun::fateOf(const ZipMember& member, const std::optional<ZipTarget::Found>& found) {
  if (!found) {
    return Fate::write;
  }
  if (options_.extractOnlyNewer && found->time >= member.time) {
    return Fate::keep;
  }
  const bool replaces = options_.overwriteExisting || (options_.promptToOverwrite && mayReplace(member.name));
  return replaces ? Fate::write : Fate::keep;
}

bool ZipRun::mayReplace(const std::string& name) {
  ReplaceAnswer answer = ReplaceAnswer::no;
  if (answerForAll_) {
    answer = *answerForAll_;
  } else if (callbacks_.replace) {
    answer = callbacks_.replace(name);
  }
  if (answer == ReplaceAnswer::all || answer == ReplaceAnswer::none) {
    answerForAll_ = answer;
  }
  return answer == ReplaceAnswer::yes || answer == ReplaceAnswer::all;
}

std::string ZipRun::passwordFor(const ZipMember& member) const {
  if (!member.isEncrypted || !callbacks_.password) {
    return {};
  }
  return callbacks_.password(options_.zipFile, member.name).value_or("");
}

void ZipRun::copy(const ZipMember& member, ZipPartFile* file) {
  const std::unique_ptr<ZipReader> reader = archive_->open(member, passwordFor(member));
  print("\"" + shownName(rowOf(member).name) + "\"");
  lastWord_ = loop_.tickCount();
  std::string block;
  std::uint64_t done = 0;
  bool converts = false;
  char last = '\0';
  while (reader->read(block)) {
    converts = done == 0 ? options_.convertCrToCrLf && isText(block) : converts;
    if (file != nullptr) {
      file->write(converts ? withLineEnds(block, last) : block);
    }
    done += block.size();
    letEventsRun(member, done);
  }
}

void ZipRun::letEventsRun(const ZipMember& member, std::uint64_t done) {
  const std::uint64_t now = loop_.tickCount();
  if (now - lastWord_ >= wordInterval) {
    lastWord_ = now;
    print("\"" + shownName(rowOf(member).name) + "\", " + std::to_string(done * 100 / member.size) + " %");
  }
  if (now - lastEvents_ >= eventInterval) {
    loop_.wait(0);
    lastEvents_ = loop_.tickCount();
  }
  if (loop_.ending()) {
    throw stoppedTrouble();
  }
}

void ZipRun::print(const std::string& text) const {
  if (callbacks_.print) {
    callbacks_.print(text);
  }
}

// What went wrong first is what the user is told; it counts for all of the run.
void ZipRun::remember(const ZipTrouble& trouble, const std::string& subject) {
  if (result_.code == 0) {
    result_.code = static_cast<int>(trouble.code);
    result_.problem = subject + ": " + trouble.why + ".";
  }
}

}  // namespace vantrel

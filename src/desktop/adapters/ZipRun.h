// One run over the members of an archive: lists, tests or unpacks them, and remembers what went wrong first.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "desktop/adapters/ZipArchive.h"
#include "desktop/adapters/ZipNames.h"
#include "desktop/adapters/ZipTarget.h"
#include "platform/Loop.h"
#include "platform/UnzipLibrary.h"

namespace vantrel {

class ZipRun {
 public:
  using Names = std::vector<std::string>;

  // All of it must outlive this.
  ZipRun(Loop& loop, const UnzipOptions& options, const UnzipCallbacks& callbacks)
      : loop_(loop), options_(options), callbacks_(callbacks) {}

  UnzipResult run(const Names& include, const Names& exclude);

 private:
  enum class Fate { write, test, keep };

  void select(const Names& include, const Names& exclude);
  std::string comparable(std::string name) const;
  void listMembers();
  void checkRoom() const;
  void take(const ZipMember& member);
  void unpack(const ZipMember& member, const ZipPlace& place);
  ZipPlace placeOf(const ZipMember& member) const;
  Fate fateOf(const ZipMember& member, const std::optional<ZipTarget::Found>& found);
  bool mayReplace(const std::string& name);
  std::string passwordFor(const ZipMember& member) const;
  void copy(const ZipMember& member, ZipPartFile* file);
  void letEventsRun(const ZipMember& member, std::uint64_t done);
  void print(const std::string& text) const;
  void remember(const ZipTrouble& trouble, const std::string& subject);

  Loop& loop_;
  const UnzipOptions& options_;
  const UnzipCallbacks& callbacks_;
  std::optional<ZipArchive> archive_;
  std::vector<ZipMember> members_;  // that take part
  std::optional<ZipTarget> target_;
  std::set<std::string> placed_;  // folded paths of what this run has put there
  std::optional<ReplaceAnswer> answerForAll_;
  std::uint64_t lastEvents_ = 0;
  std::uint64_t lastWord_ = 0;
  UnzipResult result_;
};

}  // namespace vantrel

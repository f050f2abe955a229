#include "maps/cUnzip.h"

#include <algorithm>

#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::int32_t refused = 1;

std::string withSlashes(std::string name, char from, char to) {
  name.resize(std::min(name.find('\0'), name.size()));
  std::replace(name.begin(), name.end(), from, to);
  return name;
}

}  // namespace

void cUnzip::setZipFile(const std::string& path) {
  zipFile_ = path;
  rows_.clear();
}

std::size_t cUnzip::place(std::int32_t i) const {
  if (i < 1 || i > FileCount()) {
    throw failures::subscriptOutOfRange();
  }
  return static_cast<std::size_t>(i - 1);
}

std::uint32_t cUnzip::FilePackedSize(std::int32_t i) const {
  const UnzipMember& member = row(i).member;
  return static_cast<std::uint32_t>(static_cast<std::uint64_t>(member.size) *
                                    static_cast<std::uint64_t>(std::clamp(100 - member.ratio, 0, 100)) / 100);
}

std::int32_t cUnzip::Directory() {
  rows_.clear();
  return run({}, true);
}

bool cUnzip::Unzip() {
  problem_.clear();
  return !zipFile_.empty() && run(selectedNames(), false) != 0;
}

// None means all.
std::vector<std::string> cUnzip::selectedNames() const {
  if (std::all_of(rows_.begin(), rows_.end(), [](const Row& row) { return row.selected; })) {
    return {};
  }
  std::vector<std::string> names;
  for (const Row& row : rows_) {
    if (row.selected) {
      const std::string& folder = row.member.folder;
      names.push_back(withSlashes((folder.empty() ? "" : folder + "/") + row.member.name, '\\', '/'));
    }
  }
  return names;
}

std::int32_t cUnzip::run(const std::vector<std::string>& include, bool list) {
  problem_.clear();
  if (include.size() > maximumUnzipNames) {
    problem_ = "Too many members are selected.";
    return refused;
  }
  const UnzipOptions options{.extractOnlyNewer = ExtractOnlyNewer,
                             .spaceToUnderscore = SpaceToUnderScore,
                             .promptToOverwrite = PromptToOverwrite,
                             .messageLevel = MessageLevel,
                             .testZip = TestZip,
                             .list = list,
                             .useFolderNames = UseFolderNames,
                             .overwriteExisting = OverwriteExisting,
                             .convertCrToCrLf = ConvertCRToCRLF,
                             .caseSensitiveFileNames = CaseSensitiveFileNames,
                             .zipFile = zipFile_,
                             .unzipFolder = list ? std::string() : UnzipFolder};
  const UnzipResult result = library_.unzip(include, {}, options, callbacks());
  problem_ = result.problem;
  return result.code;
}

UnzipCallbacks cUnzip::callbacks() {
  UnzipCallbacks callbacks;
  callbacks.print = [this](const std::string& text) {
    std::string shown = text;
    std::replace(shown.begin(), shown.end(), '/', '\\');
    Progress.fire(1, shown);
  };
  callbacks.service = [this](const std::string& name, std::uint32_t /*size*/) {
    bool stops = false;
    Cancel.fire(withSlashes(name, '\\', '/'), stops);
    return stops;
  };
  callbacks.replace = [this](const std::string& name) {
    ReplaceAnswer answer = ReplaceAnswer::no;
    OverwritePrompt.fire(withSlashes(name, '/', '\\'), answer);
    return answer;
  };
  callbacks.password = [this](const std::string& /*archive*/, const std::string& /*member*/) {
    std::string password;
    bool isNone = false;
    PasswordRequest.fire(password, isNone);
    return isNone || password.empty() ? std::nullopt : std::optional(password);
  };
  callbacks.message = [this](const UnzipMember& member) { rows_.push_back({member, true}); };
  return callbacks;
}

}  // namespace vantrel

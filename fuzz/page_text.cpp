// A page becomes text in one pass whatever it holds, and what an index names are words without line ends.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "export/modHTML2Text.h"
#include "maps/MirrorIndex.h"
#include "platform/Failure.h"

namespace {

// Time stands still, and nothing is ever on the disk.
struct NoLoop : vantrel::Loop {
  std::uint64_t tickCount() const override { return 0; }
  void wait(int /*milliseconds*/) override {}
  vantrel::TimerId startTimer(int /*milliseconds*/, vantrel::TimerKind /*kind*/,
                              std::function<void()> /*due*/) override {
    return 0;
  }
  void stopTimer(vantrel::TimerId /*timer*/) override {}
  std::string dateAndTime() const override { return {}; }
  std::string generalDate() const override { return {}; }
  std::string fixedDate() const override { return {}; }
  bool ending() const override { return false; }
};

struct NoFiles : vantrel::Files {
  std::string read(const std::string& /*path*/) const override { throw vantrel::failures::fileNotFound(); }
  void replace(const std::string& /*path*/, const std::string& /*bytes*/) override {}
  void remove(const std::string& /*path*/) override {}
  void rename(const std::string& /*from*/, const std::string& /*to*/) override {}
  std::optional<vantrel::FileStamp> stamp(const std::string& /*path*/) const override { return {}; }
  std::optional<std::string> find(const std::string& /*path*/) const override { return {}; }
  std::vector<vantrel::FolderEntry> list(const std::string& /*folder*/) const override { return {}; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  NoLoop loop;
  NoFiles files;
  vantrel::modHTML2Text reduction(loop, files);
  const std::string page(reinterpret_cast<const char*>(data), size);
  const std::string text = reduction.HtmlToText("<body>" + page, "");
  if (text.size() > 8 * (size + 8)) {
    std::abort();
  }
  for (const std::string& map : vantrel::indexMaps(text)) {
    if (map.find_first_of("\r\n ") != std::string::npos) {
      std::abort();
    }
  }
  return 0;
}

#include "maps/MirrorPages.h"

#include <utility>

#include "core/PumpWait.h"

namespace vantrel {

std::optional<std::string> MirrorPages::read(const std::string& mirror, const std::vector<int>& waits,
                                             const std::function<bool()>& goesOn) {
  std::string page = inet1_.openUrl(mirror);
  if (page.empty()) {
    for (const int wait : waits) {
      if (!goesOn()) {
        return {};
      }
      PumpWait(loop_, wait);
    }
  }
  if (!goesOn()) {
    return {};
  }
  const std::string text = page.empty() ? timedOut : reduction_.HtmlToText(std::move(page), "");
  return goesOn() ? std::optional(text) : std::nullopt;
}

}  // namespace vantrel

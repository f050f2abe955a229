#include "maps/MirrorList.h"

#include "core/Text.h"

namespace vantrel {
namespace {

constexpr std::size_t shortestAddress = 8;

bool isWebAddress(const std::string& text) {
  const std::string lower = lowerCase(text);
  return lower.starts_with("http://") || lower.starts_with("https://");
}

}  // namespace

void MirrorList::load() {
  if (!c_.rewrites.isUnderWay(file())) {
    window_.lstMirrors.clear();
    c_.storeFiles.LoadMirrors();
  }
}

void MirrorList::empty() {
  if (!c_.rewrites.isUnderWay(file())) {
    window_.lstMirrors.clear();
  }
}

void MirrorList::add() {
  const std::string question = "What is the mirror URL?\r\nEXAMPLE: " + c_.stores.site.mirror;
  std::string answer = c_.dialogs.askText("Add Mirror", question, "http://").value_or("");
  if (answer.empty()) {
    return;
  }
  if (answer.size() < shortestAddress) {
    c_.stores.notices.popUpBalloon("Invalid URL. Please try again!", "Invalid URL");
    return;
  }
  if (answer.find("http://") == std::string::npos) {
    c_.stores.notices.popUpBalloon("http:// required before URL", "Invalid Mirror URL");
    return;
  }
  if (!answer.ends_with('/')) {
    answer += '/';
  }
  window_.lstMirrors.add(answer);
  c_.storeFiles.AddMirrorEntry(file(), answer);
  window_.cmdRemove.enabled.set(true);
}

void MirrorList::remove() {
  ListBox& list = window_.lstMirrors;
  if (list.selected() < 0) {
    c_.stores.notices.popUpBalloon("Select mirror to remove!", "No Mirror Selected!");
    return;
  }
  list.remove(list.selected());
  c_.rewrites.saveMirrors(file());
  if (list.count() == 0) {
    window_.cmdRemove.enabled.set(false);
  }
}

void MirrorList::move(int by) {
  ListBox& list = window_.lstMirrors;
  const int from = list.selected();
  const int to = from + by;
  if (from >= 0 && to >= 0 && to < list.count()) {
    list.swap(from, to);
    c_.rewrites.saveMirrors(file());
  }
}

void MirrorList::showSite() {
  const std::string number = std::to_string(window_.lstMirrors.selected() + 1);
  const std::string site = c_.stores.profiles.ReadIniValue(file(), number, "Mirrorurl");
  window_.lblURL.caption.set(site);
  window_.lblURL.visible.set(!site.empty());
  window_.lblUrl1.visible.set(!site.empty());
  window_.picMirror.set(!site.empty());
}

void MirrorList::visitSite() {
  const std::string& site = window_.lblURL.caption.get();
  if (isWebAddress(site)) {
    c_.shell.open(site);
  }
}

}  // namespace vantrel

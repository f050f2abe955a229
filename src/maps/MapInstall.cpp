#include "maps/MapInstall.h"

#include <algorithm>
#include <memory>

#include "core/FailureStyles.h"
#include "core/PathText.h"
#include "core/PumpWait.h"
#include "core/Text.h"
#include "maps/MirrorIndex.h"
#include "maps/MirrorState.h"
#include "maps/cUnzip.h"
#include "maps/modCheckPath.h"

namespace vantrel {
namespace {

constexpr int noticeTime = 4000;  // milliseconds
constexpr int retryTime = 50;     // milliseconds
constexpr const char* cancelledStatus = "Download Status: Cancelled.";

}  // namespace

MapInstall::MapInstall(const Context& context) : c_(context), window_(context.window) {
  c_.commands.add(command::downloadMap, [this] { show(); });
  window_.hasCache.set(!c_.site.cacheServerPrefix.empty());
  connections_.push_back(window_.pressed.connect([this](MirrorCommand command) {
    reportAndEnd([&] { press(command); },
                 [this](const Failure& failure) { c_.notices.ShowPopMsg(errorReport(failure)); });
  }));
  connections_.push_back(window_.mirrorClicked.connect([this] { stopSilently([this] { select(); }); }));
  connections_.push_back(window_.closed.connect([this] { unload(); }));
  showProgress();
}

MapInstall::~MapInstall() {
  c_.loop.stopTimer(later_);
}

void MapInstall::showProgress() {
  connections_.push_back(c_.dl1.DLComplete.connect([this] {
    if (loaded_) {
      complete();
    }
  }));
  connections_.push_back(c_.dl1.RecievedBytes.connect(
      [this](std::int32_t bytes) { window_.lblBytes.caption.set(std::to_string(bytes) + " bytes"); }));
  connections_.push_back(c_.dl1.Percent.connect([this](std::int32_t percent) {
    if (percent != percent_) {
      percent_ = percent;
      window_.lblPercent.caption.set(std::to_string(percent) + " %");
      window_.pb1.set(std::clamp(percent, 0, 100));  // A body may be longer than the server has told.
    }
  }));
  connections_.push_back(
      c_.dl1.TimeLeft.connect([this](const std::string& left) { window_.lblTime.caption.set(left); }));
  // Nothing else would tell that it goes no further.
  connections_.push_back(c_.dl1.DLECode.connect([this](std::int32_t code) {
    headIsLost_ = headIsLost_ || code == DownLoad::headError;
    if (loaded_ && code == DownLoad::transferError) {
      window_.lblInfo.caption.set("The download broke off. Press Cancel, then try again.");
    }
  }));
}

// A download that was cancelled, or an unpacking, may still stand below this on the stack, and nothing can be
// downloaded until it is gone.
void MapInstall::show() {
  c_.loop.stopTimer(later_);
  if (!loaded_ && (c_.dl1.InDL() || completing_)) {
    later_ = c_.loop.startTimer(retryTime, TimerKind::once, [this] { show(); });
    return;
  }
  window_.visible.set(false);
  const bool isAtWork = c_.dl1.InDL() || completing_;
  if (!isAtWork) {
    open();
  }
  window_.visible.set(true);
  if (!isAtWork) {
    load();
  }
}

void MapInstall::open() {
  c_.mirrors.load();
  c_.dl1.reset();
  resetButtons(window_);
  loaded_ = true;
}

void MapInstall::showFor(const std::string& map) {
  if (!c_.dl1.InDL() && !completing_) {
    beginAttempt();
    open();
  }
  window_.lblMap.caption.set(map);
  window_.visible.set(true);
}

void MapInstall::load() {
  const int attempt = beginAttempt();
  c_.check.checkMap(mapOnShow());
  c_.loop.wait(0);
  PumpWait(c_.loop, 50);
  if (isLatest(attempt) && window_.lstMirrors.count() > 0) {
    window_.lstMirrors.select(0);
    select();
  }
}

int MapInstall::beginAttempt() {
  ++attempt_;
  c_.pages.stop();
  return attempt_;
}

void MapInstall::press(MirrorCommand command) {
  switch (command) {
    case MirrorCommand::download:
      return downloadMap();
    case MirrorCommand::pause:
      window_.lblStatus.caption.set("Download Status: Paused");
      return c_.dl1.Pause(true);
    case MirrorCommand::resume:
      window_.lblStatus.caption.set("Download Status:");
      return c_.dl1.Pause(false);
    case MirrorCommand::cancel:
      return cancel();
    case MirrorCommand::add:
      return c_.mirrors.add();
    case MirrorCommand::remove:
      return c_.mirrors.remove();
    case MirrorCommand::up:
      return c_.mirrors.move(-1);
    case MirrorCommand::down:
      return c_.mirrors.move(1);
    case MirrorCommand::visitSite:
      return c_.mirrors.visitSite();
    case MirrorCommand::cache:
      return tellCache();
    case MirrorCommand::mapList:  // of who shows the maps
      return;
  }
}

void MapInstall::select() {
  const int attempt = beginAttempt();
  disableButtons(window_);
  window_.cmdDL.enabled.set(true);
  if (window_.lstMirrors.count() > 0) {
    window_.cmdRemove.enabled.set(true);
  }
  c_.mirrors.showSite();
  enableButtons(window_);
  findMap(window_.lblMap.caption.get(), c_.mirrors.selected(), attempt);
}

void MapInstall::findMap(const std::string& someMap, const std::string& infoSite, int attempt) {
  const auto goesOn = [this, attempt] { return isLatest(attempt); };
  Info("Querying mirror for map: " + upperCase(someMap));
  if (!goesOn()) {
    return;
  }
  const auto index = c_.pages.read(infoSite, {0, 500, 1000, 2000, 2000}, goesOn);
  if (!index) {
    return;
  }
  if (!indexHasMap(*index, someMap)) {
    enableButtons(window_);
    Info("Map was not found on this mirror!\r\nClick Map List to see maps on this mirror!");
    return;
  }
  Info("Map was found on this mirror! Downloading map: " + upperCase(window_.lblMap.caption.get()));
  if (goesOn()) {
    downloadMap();
  }
}

void MapInstall::downloadMap() {
  if (completing_) {
    return;
  }
  const int attempt = beginAttempt();
  const std::string map = window_.lblMap.caption.get();
  if (map.empty()) {
    window_.cmdDL.enabled.set(false);
    c_.notices.popUpBalloon("Map download was aborted previously. Closing window.", "");
    if (isLatest(attempt)) {
      unload();
    }
    return;
  }
  if (c_.check.isMapInstalled(map + ".map")) {
    c_.notices.popUpBalloon("The selected map  is already installed!", map);
    return;
  }
  if (MakeFolderPath(c_.disk, c_.folder.path("\\temp"))) {
    c_.loop.wait(0);
    PumpWait(c_.loop, 50);
  }
  if (!isLatest(attempt)) {
    return;
  }
  if (window_.lstMirrors.selected() >= 0) {
    window_.pb1.set(0);
    window_.lblPercent.caption.set("0 %");
    window_.lblTime.caption.set("Unknown");
    window_.lblBytes.caption.set("0 bytes");
    for (Button* const button : {&window_.cmdPause, &window_.cmdCancel, &window_.cmdResume}) {
      button->enabled.set(true);
    }
  }
  askAndDownload(map, attempt);
}

void MapInstall::askAndDownload(const std::string& map, int attempt) {
  if (window_.lstMirrors.selected() < 0) {
    c_.notices.popUpBalloon("Please select a mirror!", "");
    window_.cmdDL.enabled.set(true);
    return;
  }
  if (c_.dl1.CPause() || c_.dl1.InDL()) {
    return;
  }
  wanted_ = map;
  c_.dl1.SaveLocation = zipPath(map);
  c_.dl1.url = mapUrl(map);
  headIsLost_ = false;
  c_.dl1.GetFileInformation();
  if (!isLatest(attempt)) {
    return;
  }
  if (c_.dl1.FileSize() < 1 || headIsLost_) {
    tellNotFound(attempt);
    return;
  }
  PumpWait(c_.loop, 10);
  if (isLatest(attempt)) {
    window_.cmdDL.enabled.set(false);
    percent_ = 0;
    window_.transferring = true;
    c_.dl1.StartDownLoad();
    window_.transferring = false;
  }
}

void MapInstall::tellNotFound(int attempt) {
  window_.cmdDL.enabled.set(true);
  c_.dl1.Pause(false);
  cancelIt(window_);
  Info("File was not found on selected mirror. Please choose another.");
  if (isLatest(attempt)) {
    window_.cmdDL.enabled.set(true);
  }
}

void MapInstall::complete() {
  if (window_.lblStatus.caption.get() == cancelledStatus) {
    c_.notices.ShowPopMsg("Download Cancelled!");
    cancelIt(window_);
    return;
  }
  window_.transferring = false;
  completing_ = true;
  window_.lblStatus.caption.set("Download Status: Complete!");
  cancelIt(window_);
  disableButtons(window_);
  stopSilently([this] {
    c_.notices.popUpBalloon("UNZIPPING MAP TO MAP FOLDER...Please Wait...", "Unzipping Map");
    const std::string problem = unzipMap();
    c_.notices.popUpBalloon(outcome(problem), "");
  });
  completing_ = false;
  unload();
}

// Why not all of the archive was unpacked; empty when it was.
std::string MapInstall::unzipMap() {
  cancelIt(window_);
  auto someZip = std::make_unique<cUnzip>(c_.library);
  const Connection progress = someZip->Progress.connect(
      [this](std::int32_t lCount, const std::string& sMsg) { someZip_Progress(lCount, sMsg); });
  someZip->setZipFile(c_.dl1.SaveLocation);
  someZip->UnzipFolder = mapsFolder();
  const std::string problem = someZip->Unzip() ? pathText(someZip->problem()) : std::string();
  someZip.reset();
  c_.check.checkMap(mapOnShow());
  return problem;
}

void MapInstall::someZip_Progress(std::int32_t /*lCount*/, const std::string& sMsg) {
  if (!sMsg.empty()) {
    window_.lblStatus.caption.set("Unzip Status: " + pathText(sMsg));
  }
}

std::string MapInstall::outcome(const std::string& problem) const {
  const bool isThere = c_.check.isMapInstalled(wanted_ + ".map");
  if (isThere && problem.empty()) {
    return "Map installed successfully!";
  }
  if (isThere) {
    return "The map is installed, but not all of its archive could be unpacked.\r\n" + problem;
  }
  return problem.empty() ? "The archive holds no \"" + wanted_ + ".map\". What it holds is in the maps folder now."
                         : "The map could not be installed, and nothing that was there has changed.\r\n" + problem;
}

// In the capitals that the folder has.
std::string MapInstall::mapsFolder() const {
  const std::string folder = c_.mainWindow.txtHaloPath.text.get() + pathSeparator + "maps";
  return c_.files.find(folder).value_or(folder);
}

void MapInstall::cancel() {
  c_.dl1.Cancel();
  window_.lblStatus.caption.set(cancelledStatus);
  complete();
  unload();
}

void MapInstall::unload() {
  if (!loaded_) {
    return;
  }
  loaded_ = false;
  window_.transferring = false;
  beginAttempt();
  c_.dl1.Cancel();
  c_.dl1.Pause(false);
  window_.visible.set(false);
  c_.mirrors.empty();
  c_.check.checkMap(mapOnShow());
}

void MapInstall::tellCache() {
  Info(window_.chkCache.isChecked()
           ? "Downloads may be slower if you don't use the cache server. Cache server use disabled."
           : "Cache server use enabled.");
}

void MapInstall::Info(const std::string& someInfo) {
  window_.lblInfo.caption.set(someInfo);
  PumpWait(c_.loop, noticeTime);
  if (window_.lblInfo.caption.get() == someInfo) {  // Something newer has a time of its own.
    window_.lblInfo.caption.set("");
  }
}

std::string MapInstall::mapUrl(const std::string& map) const {
  const std::string direct = c_.mirrors.selected() + map + ".zip";
  return window_.chkCache.isChecked() ? direct : c_.site.cacheServerPrefix + direct;
}

// A name that comes from a server leads to no other folder.
std::string MapInstall::zipPath(const std::string& map) const {
  std::string name = map;
  std::replace_if(
      name.begin(), name.end(),
      [](char c) {
        return static_cast<unsigned char>(c) < ' ' || std::string("/\\:*?\"<>|").find(c) != std::string::npos;
      },
      '_');
  return c_.folder.path("\\temp\\" + name + ".zip");
}

}  // namespace vantrel

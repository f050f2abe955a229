#include "app/Program.h"

#include <QApplication>
#include <utility>

#include "core/FailureStyles.h"
#include "core/StoresAtStart.h"
#include "core/modSGrid.h"

namespace vantrel {
namespace {

constexpr int getServerList = 32;

}  // namespace

Program::Program(Site site, const std::string& appDir)
    : site_(std::move(site)),
      folder_(files_, appDir),
      frmMain_(loop_),
      profiles_(files_, loop_),
      storeContext_{profiles_, loop_, notices_, folder_, site_, frmMain_, frmBuddies_, frmMirror_},
      stores_(storeContext_),
      commands_(notices_),
      sweep_({ws2_, loop_, frmMain_, frmPlayers_, stores_, folder_, progress_}),
      exchange_({ws1_, loop_, frmMain_, frmPlayers_, sweep_, progress_, site_}),
      window_(frmMain_, commands_, progress_) {
  frmMain_.grdServers.updating.set(false);
  SetupGrid(frmMain_.grdServers);
  stopSilently([this] { stores_.LoadBuddies(); });
  frmMain_.grdServers.updating.set(true);
  openStores(storeContext_, stores_);
  commands_.add(getServerList, [this] { exchange_.start(); });
  closed_ = window_.closed.connect([this] { end(); });
}

void Program::run() {
  window_.show();
  QApplication::exec();
}

void Program::end() {
  loop_.beginEnding();
  QApplication::quit();
}

}  // namespace vantrel

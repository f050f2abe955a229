#include "core/frmMain.h"

#include <string>

namespace vantrel {
namespace {

constexpr int pingDelay = 11000;  // milliseconds

}  // namespace

frmMain::frmMain(Loop& loop) : tmrPing(loop, pingDelay) {
  for (TextBox* const total : {&txtPlayers, &txtCTF, &txtSlayer, &txtOther}) {
    total->text.set("0");
  }
  cmdMenu[32].caption.set("Get  Halo CE Server List");
  countOnNotice_ = grdServers.notified.connect(
      [this] { lblCount.caption.set("Server Count: " + std::to_string(grdServers.rowCount())); });
}

}  // namespace vantrel

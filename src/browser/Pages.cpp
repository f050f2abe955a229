#include "browser/Pages.h"

namespace vantrel {

Pages::Pages(frmMain& window, Commands& commands, Notices& notices) : window_(window), commands_(commands) {
  // The server list stays on under the first of them, out of sight.
  commands.add(command::showCurrentGame, [this] { showDetail("Current Game", window_.ListView4); });
  commands.add(command::showPlayers, [this] {
    showDetail("Players", window_.ListView2);
    window_.grdServers.visible.set(false);
    window_.cmdMenu[command::explainBuddies].visible.set(true);
  });
  commands.add(command::showMisc, [this] {
    showDetail("Misc. Server Information", window_.ListView1);
    window_.grdServers.visible.set(false);
  });
  commands.add(command::showVehicles, [this] {
    showDetail("Vehicles", window_.ListView5);
    window_.grdServers.visible.set(false);
  });
  commands.add(command::showSettings, [this] {
    window_.lblText2[0].caption.set("");
    showPage(window_.picSettings);
    window_.picRef.visible.set(true);
  });
  commands.add(command::showFaves, [this] {
    showPage(window_.picFaves);
    window_.picFaves2.visible.set(true);
    window_.PicAbout.visible.set(true);
    window_.picRef.visible.set(true);
    window_.cmbGameType.text.set("Undefined");
  });
  commands.add(command::showTools, [this] {
    showPage(window_.picTools);
    window_.picRef.visible.set(true);
  });
  commands.add(command::showServers, [this] {
    hidePages();
    leaveDetail();
    window_.grdServers.visible.set(true);
    window_.PicBG.visible.set(false);
    window_.cmbGameType.text.set("Undefined");
  });
  commands.add(command::showAbout, [this] {
    commands_.cmdMenu_Click(command::showCurrentGame);
    window_.PicAbout.visible.set(!window_.PicAbout.visible.get());
  });
  commands.add(command::explainBuddies, [&notices] {
    notices.ShowPopMsg(
        "Right click player names to add them to your\r\nto your buddy list. Vantrel CE can then find them online.");
  });
}

void Pages::showTab(const std::string& someTab) {
  if (someTab == "Current Game") {
    commands_.cmdMenu_Click(command::showCurrentGame);
  } else if (someTab == "Misc.") {
    commands_.cmdMenu_Click(command::showMisc);
  } else if (someTab == "Vehicles") {
    commands_.cmdMenu_Click(command::showVehicles);
  } else {
    commands_.cmdMenu_Click(command::showPlayers);
  }
}

// Only what changes is changed, so that nothing on the screen goes and comes back.
void Pages::showDetail(const std::string& title, ListView& list) {
  hidePages();
  showListOnly(&list);
  window_.lblText2[0].caption.set(title);
  window_.lblText2[0].visible.set(true);
  window_.ListView3.visible.set(true);
  window_.picScore.visible.set(true);
  window_.PicBG.visible.set(true);
}

void Pages::showPage(Panel& page) {
  hidePages(&page);
  leaveDetail();
  window_.grdServers.visible.set(false);
  window_.PicBG.visible.set(true);
  page.visible.set(true);
}

void Pages::leaveDetail() {
  showListOnly(nullptr);
  window_.lblText2[0].visible.set(false);
  window_.ListView3.visible.set(false);
  window_.picScore.visible.set(false);
}

void Pages::showListOnly(const ListView* shown) {
  for (ListView* const list : {&window_.ListView1, &window_.ListView2, &window_.ListView4, &window_.ListView5}) {
    list->visible.set(list == shown);
  }
}

// Every page but the server list and the detail pages.
void Pages::hidePages(const Panel* but) {
  for (Panel* const page : {&window_.picSettings, &window_.picRef, &window_.picTools, &window_.picFaves,
                            &window_.picFaves2, &window_.PicAbout}) {
    if (page != but) {
      page->visible.set(false);
    }
  }
}

}  // namespace vantrel

// The pages of the main window: panels that lie on top of each other, and a command for each page.
#pragma once

#include <string>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "platform/Notices.h"

namespace vantrel {

class Pages {
 public:
  // Adds the commands of the pages to `commands`. All of it must outlive this.
  Pages(frmMain& window, Commands& commands, Notices& notices);

  // Opens the detail page of that name, "Players" for any other name.
  void showTab(const std::string& someTab);

 private:
  void showDetail(const std::string& title, ListView& list);
  void showPage(Panel& page);
  void leaveDetail();
  void showListOnly(const ListView* shown);
  void hidePages(const Panel* but = nullptr);

  frmMain& window_;
  Commands& commands_;
};

}  // namespace vantrel

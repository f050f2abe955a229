// The two ways to tell the user something: a short message that fades, and a balloon that is waited for.
#pragma once

#include "appearance/frmPopMsg.h"
#include "appearance/frmPopup.h"
#include "platform/Dialogs.h"
#include "platform/Notices.h"

namespace vantrel {

// What they are made with; all of it must outlive Announcements.
struct AnnouncementsContext {
  Loop& loop;
  frmPopMsg& message;
  frmPopup& popup;
  PopupDisplays& displays;
  Dialogs& dialogs;
};

class Announcements : public Notices {
 public:
  explicit Announcements(const AnnouncementsContext& context) : c_(context) {}

  void ShowPopMsg(const std::string& text) override { c_.message.ShowPopMsg(text); }

  // Balloons that wait inside one another share the fields, so that the first one to end releases them all. Returns at
  // once when the program ends.
  void popUpBalloon(const std::string& text, const std::string& title) override;

  // Returns when the short message on show has faded, or no later than one would that has just been shown; events run
  // meanwhile.
  void waitForNotice();

 private:
  void balloon();

  AnnouncementsContext c_;
};

}  // namespace vantrel

#include "appearance/Announcements.h"

#include <memory>

#include "core/FailureStyles.h"
#include "core/PumpWait.h"

namespace vantrel {
namespace {

constexpr int lookInterval = 10;     // milliseconds
constexpr int longestFading = 1000;  // both ways together, and some more

}  // namespace

void Announcements::popUpBalloon(const std::string& text, const std::string& title) {
  if (c_.loop.ending()) {
    return;
  }
  frmPopup& popup = c_.popup;
  popup.Option2 = {true, false};
  popup.Combo1.text.set("Information");
  popup.Combo4.text.set("Balloon");
  popup.Text11.text.set(text);
  popup.txtTitle.text.set(title.empty() ? "Vantrel CE" : title);
  popup.Text3[0].text.set("0");
  popup.Text3[1].text.set("0");
  stopSilently([this] { balloon(); });
  PumpWait(c_.loop, 0);
  popup.unload();
}

// The display lives as long as this waits for its balloon. One that could show nothing is not waited for: no answer
// would ever come.
void Announcements::balloon() {
  c_.popup.clearAnswers();
  const std::unique_ptr<PopupDisplay> display = c_.displays.create();
  const std::string trouble =
      display ? display->popUpBalloon(c_.popup.request()) : std::string("Popup.dll not registered.");
  if (!trouble.empty()) {
    c_.dialogs.showMessage("", trouble);
    return;
  }
  while (c_.popup.msgBack.empty() && !c_.loop.ending()) {
    PumpWait(c_.loop, lookInterval);
  }
  const std::string answer = c_.popup.msgBack;
  if (!answer.empty() && answer != PopupRequest::endedByItself) {
    c_.dialogs.showMessage("", answer);
  }
}

void Announcements::waitForNotice() {
  const std::uint64_t end = c_.loop.tickCount() + frmPopMsg::timeOnShow + longestFading;
  while (c_.message.isLoaded() && c_.loop.tickCount() < end && !c_.loop.ending()) {
    PumpWait(c_.loop, lookInterval);
  }
}

}  // namespace vantrel

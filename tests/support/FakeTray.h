// The desktop's tray, a window with an opacity, and balloons that end when their time is over or a test says so.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/LayeredWindow.h"
#include "platform/Loop.h"
#include "platform/PopupDisplay.h"
#include "platform/Tray.h"

namespace vantrel {

// A tray that can crash and be built anew.
struct FakeTray : Tray {
  void setUp(const TrayIconPlan& wanted) override { plan = wanted; }
  bool isIconVisible() const override { return standing && shown; }
  void setIconVisible(bool visible) override { shown = visible; }
  void setPersistent(bool wanted) override { persistent = wanted; }

  void crash() {
    standing = false;
    lost.fire();
  }
  void comeAgain() {
    standing = true;
    shown = shown && persistent;
    Refreshed.fire();
  }

  bool standing = true;
  bool shown = false;
  bool persistent = false;
  TrayIconPlan plan;
};

// Keeps what it was told, with the time: "10:0 20:36 ".
struct FakeLayer : LayeredWindow {
  explicit FakeLayer(Loop& clock) : loop(clock) {}
  bool setConstantAlpha(int level) override {
    log += std::to_string(loop.tickCount()) + ":" + std::to_string(level) + " ";
    return !fails;
  }

  Loop& loop;
  std::string log;
  bool fails = false;
};

struct FakePopupDisplays : PopupDisplays {
  explicit FakePopupDisplays(Loop& clock) : loop(clock) {}

  std::unique_ptr<PopupDisplay> create() override { return missing ? nullptr : std::make_unique<Display>(*this); }

  Loop& loop;
  bool missing = false;
  std::string trouble;  // what every balloon ends with at once
  std::string answer = PopupRequest::endedByItself;
  std::vector<PopupRequest> shown;

 private:
  struct Display : PopupDisplay {
    explicit Display(FakePopupDisplays& all) : displays(all) {}
    std::string popUpBalloon(const PopupRequest& request) override {
      displays.shown.push_back(request);
      if (displays.trouble.empty()) {
        displays.loop.startTimer(static_cast<int>(request.autoCloseSeconds * 1000), TimerKind::once,
                                 [answers = request.answers, text = displays.answer] { answers->MsgBack(text); });
      }
      return displays.trouble;
    }
    FakePopupDisplays& displays;
  };
};

}  // namespace vantrel

// The balloons on the screen. They are placed beside one another and live until they end, also without their display.
#pragma once

#include <vector>

#include "platform/PopupDisplay.h"

namespace vantrel {

class BalloonWindow;

class QtPopupDisplays : public PopupDisplays {
 public:
  // Balloons on the screen at a time. One beyond that, of a key held down, takes the place of the newest one and
  // shares its end.
  static constexpr std::size_t mostBalloons = 8;

  QtPopupDisplays();
  QtPopupDisplays(const QtPopupDisplays&) = delete;
  QtPopupDisplays& operator=(const QtPopupDisplays&) = delete;
  ~QtPopupDisplays() override;

  std::unique_ptr<PopupDisplay> create() override;

  // Ends every balloon, as the user would.
  void endAll();

 private:
  class Display;
  struct OnScreen {
    std::unique_ptr<BalloonWindow> window;
    std::vector<PopupAnswers*> answers;
  };

  void present(const PopupRequest& request);
  void finish(const BalloonWindow* window, const std::string& answer);

  std::vector<OnScreen> balloons_;  // the newest last
};

}  // namespace vantrel

// The notices as small windows of their own: short messages in the lower right corner of the screen that the program
// is on, balloons near the mouse.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Loop.h"
#include "platform/Notices.h"

namespace vantrel {

class NoticeWindow;

class QtNotices : public Notices {
 public:
  static constexpr int usualTime = 3000;  // milliseconds
  // Balloons that wait inside one another. A call beyond that, of a key held down, gives its texts to the innermost
  // one and returns at once.
  static constexpr std::size_t mostBalloons = 8;

  // Every notice is on show for `milliseconds`. `loop` must outlive the notices.
  explicit QtNotices(Loop& loop, int milliseconds = usualTime);
  QtNotices(const QtNotices&) = delete;
  QtNotices& operator=(const QtNotices&) = delete;
  ~QtNotices() override;

  void ShowPopMsg(const std::string& text) override;
  void popUpBalloon(const std::string& text, const std::string& title) override;

  // Returns when the short message on show is gone, after a notice's time at the latest; events run meanwhile.
  void waitForNotice();

 private:
  void presentBalloon(NoticeWindow& balloon, const std::string& text, const std::string& title);

  Loop& loop_;
  int time_;
  std::unique_ptr<NoticeWindow> popMsg_;
  std::uint64_t popMsgOver_ = 0;         // the tick at which the message has been seen
  std::vector<NoticeWindow*> balloons_;  // that are waited for, the innermost last
};

}  // namespace vantrel

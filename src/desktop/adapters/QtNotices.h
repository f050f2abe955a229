// The notices as small windows of their own, in the lower right corner of the screen.
#pragma once

#include <memory>

#include "platform/Loop.h"
#include "platform/Notices.h"

class QWidget;

namespace vantrel {

class NoticeWindow;

class QtNotices : public Notices {
 public:
  // `loop` must outlive the notices.
  explicit QtNotices(Loop& loop);
  QtNotices(const QtNotices&) = delete;
  QtNotices& operator=(const QtNotices&) = delete;
  ~QtNotices() override;

  void ShowPopMsg(const std::string& text) override;
  void popUpBalloon(const std::string& text, const std::string& title) override;

 private:
  Loop& loop_;
  std::unique_ptr<NoticeWindow> popMsg_;
};

}  // namespace vantrel

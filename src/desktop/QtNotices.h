// The notices as small windows of their own, in the lower right corner of the screen.
#pragma once

#include <memory>

#include "platform/Notices.h"

class QWidget;

namespace vantrel {

class NoticeWindow;

class QtNotices : public Notices {
 public:
  QtNotices();
  QtNotices(const QtNotices&) = delete;
  QtNotices& operator=(const QtNotices&) = delete;
  ~QtNotices() override;

  void ShowPopMsg(const std::string& text) override;
  void popUpBalloon(const std::string& text, const std::string& title) override;

 private:
  std::unique_ptr<NoticeWindow> popMsg_;
};

}  // namespace vantrel

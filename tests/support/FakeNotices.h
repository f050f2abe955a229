// Keeps what the user was told. A balloon stands for `balloonTime` milliseconds, during which events run.
#pragma once

#include <string>
#include <vector>

#include "platform/Loop.h"
#include "platform/Notices.h"

namespace vantrel {

class FakeNotices : public Notices {
 public:
  explicit FakeNotices(Loop& loop) : loop_(loop) {}

  void ShowPopMsg(const std::string& text) override { log.push_back(text); }
  void popUpBalloon(const std::string& text, const std::string& title) override {
    log.push_back((title.empty() ? "Vantrel CE" : title) + ": " + text);
    loop_.wait(balloonTime);
  }

  std::vector<std::string> log;
  int balloonTime = 0;

 private:
  Loop& loop_;
};

}  // namespace vantrel

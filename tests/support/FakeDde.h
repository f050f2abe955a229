// Another program on the desktop, which a conversation finds when `clientRuns` and which keeps a log of what it is
// told.
#pragma once

#include <string>
#include <vector>

#include "platform/Dde.h"
#include "platform/Failure.h"

namespace vantrel {

struct FakeDde : Dde {
  void open(const std::string& topic) override {
    isOpen_ = false;
    if (!clientRuns || topic != "mirc|command") {
      throw failures::noForeignApplication();
    }
    isOpen_ = true;
    log.push_back("open " + topic);
  }
  void poke(const std::string& item, const std::string& text) override {
    if (!isOpen_) {
      throw failures::noConversation();
    }
    if (!clientRuns || !clientAnswers) {
      throw failures::foreignApplicationRefused();
    }
    log.push_back("poke " + item + " " + text);
  }
  void close() override {
    isOpen_ = false;
    log.push_back("close");
  }

  bool clientRuns = false;
  bool clientAnswers = true;
  std::vector<std::string> log;

 private:
  bool isOpen_ = false;
};

}  // namespace vantrel

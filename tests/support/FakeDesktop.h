// The desktop around the program: a lock that another copy may hold, a user who answers questions, and a shell.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/Failure.h"
#include "platform/InstanceLock.h"
#include "platform/SchemeHandler.h"
#include "platform/Shell.h"
#include "platform/cPopupMenu.h"

namespace vantrel {

struct FakeInstanceLock : InstanceLock {
  bool acquire() override { return held = !takenByOther; }

  bool takenByOther = false;
  bool held = false;
};

// Answers from a queue; a question without an answer there fails the test.
struct FakeDialogs : Dialogs {
  std::optional<std::string> askFile(const FileQuestion& question) override {
    if (thinkingTime) {
      thinkingTime();
    }
    return answer(question.filter);
  }
  std::optional<std::string> askText(const std::string& title, const std::string& text,
                                     const std::string& /*preset*/) override {
    return answer(title + "|" + text);
  }
  bool askYesNo(const std::string& title, const std::string& text) override {
    return answer(title + "|" + text) == "yes";
  }
  void showMessage(const std::string& title, const std::string& text) override { answer(title + "|" + text); }

  std::deque<std::optional<std::string>> answers;
  std::vector<std::string> asked;
  std::function<void()> thinkingTime;  // what passes while a file is picked

 private:
  std::optional<std::string> answer(const std::string& question) {
    asked.push_back(question);
    if (answers.empty()) {
      ADD_FAILURE() << "nobody answers: " << question;
      return std::nullopt;
    }
    const std::optional<std::string> first = answers.front();
    answers.pop_front();
    return first;
  }
};

// A user who chooses entry `choice` of every menu, behind whatever `meanwhile` does.
struct FakePopupMenu : cPopupMenu {
  int Popup(const std::vector<std::string>& items) override {
    shown.push_back(items);
    if (meanwhile) {
      meanwhile();
    }
    return choice;
  }

  int choice = 0;
  std::function<void()> meanwhile;
  std::vector<std::vector<std::string>> shown;
};

// Opens everything, unless it is told not to.
struct FakeShell : Shell {
  bool open(const std::string& target) override {
    opened.push_back(target);
    return opens;
  }
  void setClipboard(const std::string& text) override { clipboard = text; }

  bool opens = true;
  std::vector<std::string> opened;
  std::string clipboard;
};

// Who opens the links.
struct FakeSchemes : SchemeHandler {
  bool isMine(const std::string& /*scheme*/) const override { return owner == "mine"; }
  void claim(const std::string& /*scheme*/) override {
    if (refuses) {
      throw failures::fileAccess();
    }
    owner = "mine";
  }
  void withdraw(const std::string& /*scheme*/) override { owner.clear(); }

  std::string owner;
  bool refuses = false;
};

}  // namespace vantrel

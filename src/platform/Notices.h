// Face of the two ways to tell the user something.
#pragma once

#include <string>

namespace vantrel {

class Notices {
 public:
  virtual ~Notices() = default;

  // Shows a short notification and returns at once; a later call replaces the text.
  virtual void ShowPopMsg(const std::string& text) = 0;

  // Shows a larger notice; an empty title gives "Vantrel CE". Returns when the notice has ended; events run meanwhile.
  virtual void popUpBalloon(const std::string& text, const std::string& title) = 0;
};

}  // namespace vantrel

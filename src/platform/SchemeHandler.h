// Face of the desktop's table of which program opens the links of a scheme.
#pragma once

#include <string>

namespace vantrel {

class SchemeHandler {
 public:
  virtual ~SchemeHandler() = default;

  // True when the links of the scheme ("halo") go to this program, as it lies now.
  virtual bool isMine(const std::string& scheme) const = 0;
  // Makes it so: the program is started with the link as its one argument. Throws failure 75 when that cannot be
  // written; what was there is then untouched.
  virtual void claim(const std::string& scheme) = 0;
  // Takes back what `claim` has written, and nothing of anybody else. Throws as `claim`.
  virtual void withdraw(const std::string& scheme) = 0;
};

}  // namespace vantrel

// Face of a window that can be seen through.
#pragma once

namespace vantrel {

class LayeredWindow {
 public:
  virtual ~LayeredWindow() = default;

  // Sets the opacity of the whole window: 0 is clear, 255 solid; no other number comes. True also where the platform
  // knows no such thing and nothing is seen of it; false when the platform reported an error.
  virtual bool setConstantAlpha(int level) = 0;
};

}  // namespace vantrel

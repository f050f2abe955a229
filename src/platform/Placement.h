// Where a control lies in its window, in twips from the window's upper left corner.
#pragma once

namespace vantrel {

inline constexpr float twipsPerPixel = 15;  // at 100 %

struct Placement {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  bool operator==(const Placement& other) const = default;
};

}  // namespace vantrel

// The toolkit's mouse buttons as the lists tell them.
#pragma once

#include <Qt>
#include <optional>

#include "platform/Controls.h"

namespace vantrel {

// Nothing for a button that no list knows.
inline std::optional<MouseButton> toMouseButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return MouseButton::left;
    case Qt::RightButton:
      return MouseButton::right;
    case Qt::MiddleButton:
      return MouseButton::middle;
    default:
      return std::nullopt;
  }
}

}  // namespace vantrel

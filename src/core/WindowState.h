// How a window stands on the screen.
#pragma once

namespace vantrel {

enum class WindowState { normal = 0, minimized = 1, maximized = 2 };

}  // namespace vantrel

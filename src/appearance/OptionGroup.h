// The option buttons of one container: at most one of them is on. The group is kept in the container's properties:
// `lv_OptCount`, the number of members, and for each member its number with "lv_Obj" behind it.
#pragma once

namespace vantrel {

class lvButtons_H;

enum class GroupWork : int { add = 1, remove = -1, askWhetherOneIsOn = 2 };

// True when one is on, where that is asked. A button that is on turns the others off first.
bool optionGroup(lvButtons_H& button, GroupWork work);

}  // namespace vantrel

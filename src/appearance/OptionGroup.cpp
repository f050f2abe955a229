#include "appearance/OptionGroup.h"

#include <vector>

#include "appearance/lvButtons_H.h"

namespace vantrel {
namespace {

constexpr const char* countKey = "lv_OptCount";

std::string memberKey(int number) {
  return std::to_string(number) + "lv_Obj";
}

int countOf(const ButtonContainer& container) {
  const auto found = container.properties.find(countKey);
  return found == container.properties.end() ? 0 : std::get<int>(found->second);
}

lvButtons_H* memberOf(const ButtonContainer& container, int number) {
  return std::get<lvButtons_H*>(container.properties.at(memberKey(number)));
}

int numberOf(const ButtonContainer& container, const lvButtons_H& button) {
  for (int number = 1; number <= countOf(container); ++number) {
    if (memberOf(container, number) == &button) {
      return number;
    }
  }
  return 0;
}

void remove(ButtonContainer& container, const lvButtons_H& button) {
  const int count = countOf(container);
  const int removed = numberOf(container, button);
  if (removed == 0) {
    return;
  }
  for (int number = removed; number < count; ++number) {
    container.properties[memberKey(number)] = memberOf(container, number + 1);
  }
  container.properties.erase(memberKey(count));
  if (count == 1) {
    container.properties.erase(countKey);
  } else {
    container.properties[countKey] = count - 1;
  }
}

// The members are noted first: a button that goes off may tell someone who changes the group.
void turnOthersOff(ButtonContainer& container, const lvButtons_H& button) {
  std::vector<lvButtons_H*> others;
  for (int number = 1; number <= countOf(container); ++number) {
    others.push_back(memberOf(container, number));
  }
  for (lvButtons_H* const other : others) {
    if (other != &button && numberOf(container, *other) != 0) {
      other->setValue(false);
    }
  }
}

}  // namespace

bool optionGroup(lvButtons_H& button, GroupWork work) {
  ButtonContainer& container = button.container();
  if (button.Value() && (work == GroupWork::add || countOf(container) > 0)) {
    turnOthersOff(container, button);
  }
  switch (work) {
    case GroupWork::add:
      if (numberOf(container, button) == 0) {
        const int count = countOf(container) + 1;
        container.properties[memberKey(count)] = &button;
        container.properties[countKey] = count;
      }
      return false;
    case GroupWork::remove:
      remove(container, button);
      return false;
    default:
      for (int number = 1; number <= countOf(container); ++number) {
        if (memberOf(container, number)->Value()) {
          return true;
        }
      }
      return false;
  }
}

}  // namespace vantrel

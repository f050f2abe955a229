#include "core/Commands.h"

#include <string>

#include "core/FailureStyles.h"

namespace vantrel {

void Commands::cmdMenu_Click(int index) {
  const auto found = handlers_.find(index);
  if (found == handlers_.end()) {
    return;
  }
  const std::function<void()> handler = found->second;
  reportAndEnd(handler, [this](const Failure& failure) {
    if (failure.number > 1) {
      notices_.ShowPopMsg("Error # " + std::to_string(failure.number) + " " + failure.description);
    }
  });
}

}  // namespace vantrel

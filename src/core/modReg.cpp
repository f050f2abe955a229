#include "core/modReg.h"

#include "core/FailureStyles.h"

namespace vantrel {

std::string modReg::GetRegValue(RegistryRoot root, const std::string& path, const std::string& name) const {
  return registry_.read(root, path, name).value_or(notFound);
}

void modReg::SetRegValue(RegistryRoot root, const std::string& path, const std::string& name, RegistryType type,
                         const std::string& value) {
  if (GetRegValue(root, path, name) != value) {
    stopSilently([&] { registry_.write(root, path, name, type, value); });
  }
}

}  // namespace vantrel

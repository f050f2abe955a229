// The registry where the system has none: a file of keys and values, docs/settings.md tells the format. What the file
// does not hold is looked up in a second registry, unless it is a key of the program's own.
#pragma once

#include <string>

#include "core/ProfileFiles.h"
#include "platform/Registry.h"

namespace vantrel {

class SettingsRegistry : public Registry {
 public:
  // `folder`: where "registry.ini" lies; made when a value is first written. `further`: may be null. All of it must
  // outlive this.
  SettingsRegistry(Files& files, Loop& loop, const std::string& folder, const Registry* further);

  std::optional<std::string> read(RegistryRoot root, const std::string& path, const std::string& name) const override;
  void write(RegistryRoot root, const std::string& path, const std::string& name, RegistryType type,
             const std::string& value) override;

 private:
  std::optional<std::string> readOwn(RegistryRoot root, const std::string& path, const std::string& name) const;

  std::string folder_;
  std::string file_;
  mutable ProfileFiles profiles_;  // reads from the disk when it is asked
  const Registry* further_;
};

}  // namespace vantrel

// The settings' way to the registry: every failure is an absent value, or a value that was not kept.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace vantrel {

// What stands for an absent value wherever a setting is read or shown.
inline constexpr const char* notFound = "Not Found";

// Where the program keeps its own values, below the current user's root.
inline constexpr const char* settingsKey = "Software\\Marrowind\\VantrelCE\\Settings";
inline constexpr const char* parametersKey = "Software\\Marrowind\\VantrelCE\\Settings\\Parameters";

class modReg {
 public:
  // `registry` must outlive this.
  explicit modReg(Registry& registry) : registry_(registry) {}

  // `notFound` when the key or value cannot be read.
  std::string GetRegValue(RegistryRoot root, const std::string& path, const std::string& name) const;

  // A value that is as wanted already, also one that is absent and set to `notFound`, is left alone.
  void SetRegValue(RegistryRoot root, const std::string& path, const std::string& name, RegistryType type,
                   const std::string& value);

 private:
  Registry& registry_;
};

}  // namespace vantrel

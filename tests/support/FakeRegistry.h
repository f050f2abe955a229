// A registry in memory that can be closed for reading or writing, with a log of what was written.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/Text.h"
#include "platform/Failure.h"
#include "platform/Registry.h"

namespace vantrel {

class FakeRegistry : public Registry {
 public:
  std::optional<std::string> read(RegistryRoot root, const std::string& path, const std::string& name) const override {
    const auto found = values_.find(keyOf(root, path, name));
    return readable && found != values_.end() ? std::optional(found->second.substr(0, 2048)) : std::nullopt;
  }
  void write(RegistryRoot root, const std::string& path, const std::string& name, RegistryType /*type*/,
             const std::string& value) override {
    if (!writable) {
      throw failures::fileAccess();
    }
    values_[keyOf(root, path, name)] = value;
    log.push_back(std::string(rootName(root)) + " " + path + "\\" + name + "=" + value);
  }

  bool readable = true;
  bool writable = true;
  std::vector<std::string> log;  // "currentUser Software\Key\name=value"

 private:
  static const char* rootName(RegistryRoot root) {
    return root == RegistryRoot::classesRoot   ? "classesRoot"
           : root == RegistryRoot::currentUser ? "currentUser"
                                               : "localMachine";
  }
  static std::string keyOf(RegistryRoot root, const std::string& path, const std::string& name) {
    return rootName(root) + ("\n" + lowerCase(path) + "\n" + lowerCase(name));
  }

  std::map<std::string, std::string> values_;
};

}  // namespace vantrel

// Face of the registry: texts under a root, the path of a key and a name. Backslashes part the keys of a path; roots
// aside, names match without regard to case.
#pragma once

#include <optional>
#include <string>

namespace vantrel {

enum class RegistryRoot { classesRoot, currentUser, localMachine };
enum class RegistryType { text = 1 };

class Registry {
 public:
  virtual ~Registry() = default;

  // The value without its terminator, cut at 2048 bytes; an empty name is the key's default value. Nothing when the key
  // or the value does not exist or cannot be read.
  virtual std::optional<std::string> read(RegistryRoot root, const std::string& path,
                                          const std::string& name) const = 0;

  // Creates the key and its missing parents, writes the value and sees it to the disk. Throws failure 75 when the names
  // cannot be stored, or the value is not on the disk afterwards; it may then be kept and written later.
  virtual void write(RegistryRoot root, const std::string& path, const std::string& name, RegistryType type,
                     const std::string& value) = 0;
};

}  // namespace vantrel

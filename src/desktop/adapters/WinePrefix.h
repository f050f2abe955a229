// The registry of a Wine prefix, to be read only, with the folders in it as this system knows them.
#pragma once

#include <string>

#include "platform/Files.h"
#include "platform/Registry.h"

namespace vantrel {

class WinePrefix : public Registry {
 public:
  // `folder`: the prefix, which holds "user.reg", "system.reg" and "drive_c"; need not exist. `files` must outlive
  // this.
  WinePrefix(const Files& files, std::string folder) : files_(files), folder_(std::move(folder)) {}

  // A value that begins with a drive's letter comes back as the folder or file that it means here, whether it exists or
  // not, with no separator at its end; nothing when the drive is unknown or the path leaves it.
  std::optional<std::string> read(RegistryRoot root, const std::string& path, const std::string& name) const override;

  // Throws failure 75: the prefix belongs to others.
  void write(RegistryRoot root, const std::string& path, const std::string& name, RegistryType type,
             const std::string& value) override;

 private:
  std::optional<std::string> localPath(const std::string& windowsPath) const;
  std::optional<std::string> drive(char letter) const;

  const Files& files_;
  std::string folder_;
};

// The user's prefix: what WINEPREFIX names, else the folder ".wine" at home.
std::string findWinePrefix();

}  // namespace vantrel

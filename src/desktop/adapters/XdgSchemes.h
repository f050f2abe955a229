// The table of a desktop after the rules of freedesktop.org: a desktop entry of our own for the scheme, and its name as
// the default in the user's list of applications.
#pragma once

#include <string>
#include <utility>

#include "platform/Files.h"
#include "platform/SchemeHandler.h"

namespace vantrel {

class XdgSchemes : public SchemeHandler {
 public:
  // `dataHome`, `configHome`: the user's base folders; without them nothing is written anywhere. `program`: full path.
  // All in the system's own bytes. `files` must outlive this.
  struct Folders {
    std::string dataHome;
    std::string configHome;
    std::string program;
  };
  XdgSchemes(Files& files, Folders folders) : files_(files), folders_(std::move(folders)) {}

  bool isMine(const std::string& scheme) const override;
  void claim(const std::string& scheme) override;
  void withdraw(const std::string& scheme) override;

 private:
  bool hasHome() const { return !folders_.dataHome.empty() && !folders_.configHome.empty(); }
  std::string entryPath() const { return folders_.dataHome + "/applications/vantrel-ce-links.desktop"; }
  std::string listPath() const { return folders_.configHome + "/mimeapps.list"; }
  std::string entry(const std::string& scheme) const;
  std::string contentOf(const std::string& path) const;

  Files& files_;
  Folders folders_;
};

// The list of applications with this line of its default applications set to `value`, or without it where `value` is
// empty. Everything else in it stays as it is.
std::string withDefault(const std::string& list, const std::string& key, const std::string& value);

// A path as the one word of a command in a desktop entry; in quotes where it needs them.
std::string quotedForEntry(const std::string& path);

}  // namespace vantrel

// The server on show as a page: a template whose placeholders are replaced by what the detail pages hold.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/AppFolder.h"
#include "core/Commands.h"
#include "core/Site.h"
#include "core/Version.h"
#include "core/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Loop.h"
#include "platform/Notices.h"
#include "platform/Shell.h"

namespace vantrel {

// A text for the query of an address: pairs of blanks become one, blanks at the ends go, and everything but letters,
// digits and "-_.~" is escaped.
std::string reportQueryEscape(const std::string& text);

class ServerReport {
 public:
  // What it works on; all of it must outlive it.
  struct Context {
    Loop& loop;
    frmMain& mainWindow;
    Commands& commands;
    Notices& notices;
    Files& files;
    const AppFolder& folder;
    Shell& shell;
    Dialogs& dialogs;
    const Site& site;
    Version version;
    std::function<std::string(std::string&)> urlEncode;  // a name for a link
  };

  // Adds command 19.
  explicit ServerReport(const Context& context);

  void showServerReport();
  // `output`: begins with a backslash, in the program's folder. Throws the failures of reading and writing.
  void makeServerReport(const std::string& output);

 private:
  struct Placeholder {
    const char* name;
    std::function<std::string(const ServerReport&)> value;
  };
  struct Team;

  static const std::vector<Placeholder>& placeholders();
  std::string fill(const std::string& line) const;
  std::string teamBlocks(std::string line, const Team& team) const;
  std::string teamBlock(std::string line, const Team& team) const;
  std::string playerList(std::string line) const;
  std::string scoreText(const std::string& score, const Team& team) const;
  std::string button() const;
  bool isEmptyServer() const;
  int countOf(const std::string& team) const;

  Context c_;
};

}  // namespace vantrel

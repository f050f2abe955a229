// The list of the mirrors that the user keeps. The list on the screen is the working copy and mirrors.ini follows it.
#pragma once

#include <string>

#include "core/StoreRewrites.h"
#include "core/modFavesIni.h"
#include "platform/Dialogs.h"
#include "platform/Shell.h"

namespace vantrel {

class MirrorList {
 public:
  // What the list works on; all of it must outlive it.
  struct Context {
    const StoreContext& stores;
    modFavesIni& storeFiles;
    StoreRewrites& rewrites;
    Dialogs& dialogs;
    Shell& shell;
  };

  explicit MirrorList(const Context& context) : c_(context), window_(context.stores.mirror) {}

  // Fills the list from mirrors.ini, or empties it. While the file is being rewritten from the list, the list stays: it
  // would else be an empty one that is written.
  void load();
  void empty();

  // The address of the selected mirror; empty when there is none.
  std::string selected() const { return window_.lstMirrors.line(window_.lstMirrors.selected()); }

  // The user's commands. Each throws the failures of the stores.
  void add();
  void remove();
  void move(int by);  // the selected mirror, one place up (-1) or down (1)

  // Shows the link to the selected mirror's web site, or hides it where it has none.
  void showSite();
  // Opens it, if it is an address of the web.
  void visitSite();

 private:
  std::string file() const { return c_.stores.folder.path("\\mirrors.ini"); }

  Context c_;
  frmMirror& window_;
};

}  // namespace vantrel

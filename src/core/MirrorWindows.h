// The state of the two windows in which a map is installed: the mirrors with the progress of a download, and the maps
// that one mirror has.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace vantrel {

enum class MirrorCommand { download, pause, resume, cancel, add, remove, mapList, up, down, visitSite, cache };

struct frmMirror {
  frmMirror() {
    lblStatus.caption.set("Download Status:");
    lblPercent.caption.set("0%");
    lblBytes.caption.set("0 bytes");
    lblTime.caption.set("Unknown");
    lblUrl1.caption.set("Visit Mirror Website:");
    cmdDL.caption.set("Download");
    cmdPause.caption.set("Pause");
    cmdResume.caption.set("Resume");
    cmdCancel.caption.set("Cancel");
    cmdAdd.caption.set("Add Mirror");
    cmdRemove.caption.set("Remove Mirror");
    cmdURL.caption.set("Map List");
    lblCached.caption.set("All map servers are cached through the cache service.");
    chkCache.caption.set("Disable downloads from the cache server?");
  }

  Field<bool> visible{false};
  Field<std::string> caption{"Vantrel CE - Select Download Mirror"};
  Label lblMap;        // the map that is wanted, without ".map"; empty for none
  ListBox lstMirrors;  // base addresses of the map mirrors; the selected one is in use
  Label lblStatus;
  Label lblPercent;
  Label lblBytes;
  Label lblTime;      // what is left
  Label lblInfo;      // a notice that goes after a while
  Field<int> pb1{0};  // progress, 0 to 100
  Label lblUrl1;
  Label lblURL;                  // address of the selected mirror's web site
  Field<bool> picMirror{false};  // whether the picture beside it is there
  Label lblCached;
  CheckBox chkCache;            // with `lblCache` as its caption
  Field<bool> hasCache{false};  // whether the two above are there
  bool transferring = false;    // a download is under way

  Button cmdDL;
  Button cmdPause;
  Button cmdResume;
  Button cmdCancel;
  Button cmdAdd;
  Button cmdRemove;
  Button cmdURL;

  Signal<> focusWanted;           // fired by the logic: the window comes to the front
  Signal<MirrorCommand> pressed;  // fired by a view, as are the two below
  Signal<> mirrorClicked;         // behind the selection
  Signal<> closed;
};

// The maps that a mirror has.
struct frmMaps {
  static constexpr const char* atRest = "Maps listed in index:";

  frmMaps() {
    lblCount.caption.set(atRest);
    cmdDL.caption.set("Download");
  }

  Field<bool> visible{false};
  Field<std::string> caption{" Mirror Index"};
  TextBox txtNew;    // the mirror's index as plain text
  ComboBox cmbMaps;  // without ".zip", in the order of the index
  Label lblCount;
  Label lblMirror;  // the mirror's address
  Button cmdDL;

  Signal<> downloadPressed;  // fired by a view, as is `closed`
  Signal<> closed;
};

}  // namespace vantrel

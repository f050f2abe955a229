// The state of the windows beside the main one.
#pragma once

#include "platform/Controls.h"
#include "platform/FavoritesList.h"

namespace vantrel {

struct frmBuddies {
  Field<bool> visible{false};
  FavoritesList myFaves1;  // a buddy's name in `name`, the server where he was last seen in `hostname`
};

struct frmPlayers {
  Field<bool> visible{false};
  ListBox lstPlayers;  // the players found
  Label lblSearchfor;
  Label lblStatus;
};

struct frmMirror {
  Label lblMap;        // the map that is wanted, without ".map"; empty for none
  ListBox lstMirrors;  // base addresses of the map mirrors
};

}  // namespace vantrel

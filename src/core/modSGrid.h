// The set-up of the server list.
#pragma once

#include "platform/ServerGrid.h"

namespace vantrel {

// The columns of the server list, by their numbers.
enum ServerColumn : int {
  cName = 1,
  cPing = 2,
  cIP = 3,
  cPort = 4,
  cMap = 5,
  cPlayers = 6,
  cGameType = 7,
  cPassword = 8,
};

// Gives the grid its look and its eight columns. REQUIRES: it has no columns.
void SetupGrid(ServerGrid& grid);

}  // namespace vantrel

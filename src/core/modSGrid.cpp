#include "core/modSGrid.h"

namespace vantrel {
namespace {

// The grid's own number for a sort on the text.
constexpr int sortOnText = 102;

// Numbers in the grid's image list.
constexpr int lockImage = 1;
constexpr int playersImage = 3;
constexpr int pingImage = 4;

}  // namespace

void SetupGrid(ServerGrid& grid) {
  grid.redraw.set(false);
  GridLook look = grid.look();  // which has its colours already
  look.rowHeight = 19;
  look.groupingHint = "Drag columns here for advanced filtering:";
  grid.setLook(look);
  const auto add = [&grid](const char* key, const char* header, int image, int width, int sortType) {
    grid.addColumn({key, header, Alignment::left, image, width, sortType});
  };
  add("cName", "Server Name ", 0, 165, sortOnText);
  add("cPing", "", pingImage, 50, sortOnText);
  add("cIP", "IP", 0, 70, sortOnText);
  add("cPort", "Port", 0, 50, 0);
  add("cMap", "Map", 0, 100, 0);
  add("cPlayers", "", playersImage, 45, sortOnText);
  add("cGameType", "Game Type", 0, 85, 0);
  add("cPassword", "", lockImage, 45, 0);
  grid.redraw.set(true);
}

}  // namespace vantrel

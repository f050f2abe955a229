// The view of frmPlayers: what is searched for, and the players that were found with their servers.
#pragma once

#include "core/SideWindows.h"
#include "desktop/window/SideWindow.h"

class QBoxLayout;

namespace vantrel {

class HitsTable;

class PlayersWindow : public SideWindow {
  Q_OBJECT

 public:
  // `model` must outlive the window. It comes up beside `owner`, which keeps the focus.
  PlayersWindow(frmPlayers& model, QWidget* owner);

 private:
  QBoxLayout* makeWanted();
  HitsTable* makeHits();
  QBoxLayout* makeFoot(HitsTable& hits);

  frmPlayers& model_;
};

}  // namespace vantrel

// The page of the favorites: their list, and what is done with the one that is selected and with the picture behind
// them.
#pragma once

#include "desktop/pages/PagePanel.h"

namespace vantrel {

class FavesPage : public PagePanel {
  Q_OBJECT

 public:
  // Both must outlive the page.
  FavesPage(frmMain& window, Commands& commands, QWidget* parent);
};

}  // namespace vantrel

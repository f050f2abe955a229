#include "desktop/window/PlayersWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/HitsTable.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int margin = 12;
constexpr int gap = 6;
constexpr int down = 308;  // than the upper edge of the main window: the buddies come up above
constexpr QSize usual{310, 245};

}  // namespace

PlayersWindow::PlayersWindow(frmPlayers& model, QWidget* owner)
    : SideWindow("frmPlayers", {model.visible, model.caption, model.closed}, Coming::quiet, down, owner),
      model_(model) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addWidget(makeTitle(tr("Players Found")));
  column->addLayout(makeWanted());
  HitsTable* const hits = makeHits();
  column->addWidget(hits, 1);
  column->addLayout(makeFoot(*hits));
  resize(usual);
  follow();
  followFocus(model_.focusWanted);
}

QBoxLayout* PlayersWindow::makeWanted() {
  auto* const heading = new QLabel(tr("Searching for names containing:"), this);
  makeDim(*heading);
  auto* const wanted = new ElidedLabel(this);
  wanted->setObjectName("lblSearchfor");
  wanted->setAccessibleName(heading->text());
  bindings().bindLabel(*wanted, model_.lblSearchfor);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(heading);
  row->addWidget(wanted, 1);
  return row;
}

HitsTable* PlayersWindow::makeHits() {
  auto* const hits = new HitsTable(model_.lstPlayers, this);
  connect(hits, &HitsTable::picked, this, [this] { model_.lineClicked.fire(); });
  connect(hits, &HitsTable::shown, this, [this] { model_.showPressed.fire(); });
  return hits;
}

QBoxLayout* PlayersWindow::makeFoot(HitsTable& hits) {
  auto* const status = new QLabel(this);
  status->setObjectName("lblStatus");
  makeDim(*status);
  bindings().bindNumber(*status, model_.lblStatus.caption);
  QPushButton* const show = makeButton(model_.cmdShow, "cmdShow", 'S', [this] { model_.showPressed.fire(); });
  show->setToolTip(tr("Shows the server where the selected player is, and closes this window"));
  makePrimary(*show);
  auto* const row = new QHBoxLayout;
  row->addWidget(status, 1);
  row->addWidget(show);
  setTabOrder(&hits, show);
  return row;
}

}  // namespace vantrel

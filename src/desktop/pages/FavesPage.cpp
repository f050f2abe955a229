#include "desktop/pages/FavesPage.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/FavesListView.h"
#include "desktop/pages/PageParts.h"

namespace vantrel {

FavesPage::FavesPage(frmMain& window, Commands& commands, QWidget* parent)
    : PagePanel(window.picFaves, "picFaves", parent) {
  setAccessibleName(tr("Favorites"));
  PageParts parts(bindings(), window, commands);
  QVBoxLayout* const column = leftColumn(content());
  auto* const list = new FavesListView(window.myFaves1, "myFaves1",
                                       tr("No favorites yet.\n\nRight click a server in the list of servers, or fill "
                                          "in the editor and press Add."),
                                       content());
  list->setAccessibleName(tr("Favorites"));
  column->addWidget(list, 1);
  // A key or a double click on the list is as good as the button, and as dead while the button is.
  const auto press = [&window, &commands](command::Number number) {
    if (window.cmdMenu[number].enabled.get()) {
      commands.cmdMenu_Click(number);
    }
  };
  connect(list, &FavesListView::editAsked, this, [press] { press(command::editFave); });
  connect(list, &FavesListView::removeAsked, this, [press] { press(command::deleteFave); });
  auto* const row = new QHBoxLayout;
  row->setSpacing(page::gap);
  row->addWidget(
      parts.button(command::setFavePicture, content(), 'K', tr("Chooses a picture to stand behind the favorites")));
  row->addWidget(parts.button(command::removeFavePicture, content(), 0, tr("Takes the picture away")));
  row->addStretch(1);
  row->addWidget(
      parts.button(command::editFave, content(), 'D', tr("Puts the selected favorite into the editor (F2)")));
  row->addWidget(
      parts.button(command::deleteFave, content(), 0, tr("Takes the selected favorite off the list (Delete)")));
  column->addLayout(row);
}

}  // namespace vantrel

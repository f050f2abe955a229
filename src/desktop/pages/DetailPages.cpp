#include "desktop/pages/DetailPages.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>

#include "desktop/controls/InfoBox.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/TeamDelegate.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

// Where what has no place of its own in the model lies, in pixels at 100 %: over and under the lists.
constexpr QRect titlePlace(40, 114, 275, 24);
constexpr int titleMargin = 8;
constexpr QPoint buddyPlace(40, 468);

QFont fixedWidthFont(const QWidget& widget) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(widget.font().pointSizeF());
  return font;
}

}  // namespace

DetailPages::DetailPages(frmMain& window, Commands& commands, QWidget* parent) : window_(window) {
  makeTitle(parent);
  addList(window.ListView4, "ListView4", QObject::tr("Current game"), parent);
  ListTable* const players = addList(window.ListView2, "ListView2", QObject::tr("Players"), parent);
  players->offerSorting();
  players->setItemDelegate(new TeamDelegate(players->shownRows(), 2, 1, players));
  ListTable* const raw =
      addList(window.ListView1, "ListView1", QObject::tr("Miscellaneous server information"), parent);
  raw->setFont(fixedWidthFont(*raw));
  addList(window.ListView5, "ListView5", QObject::tr("Vehicles"), parent);
  QWidget* const buddies = makeBuddyButton(commands, parent);
  new SummaryPanel(window, commands, parent);
  ListTable* const teams = addList(window.ListView3, "ListView3", QObject::tr("Teams"), parent);
  teams->setItemDelegate(new TeamDelegate(teams->shownRows(), 0, 1, teams));
  QWidget::setTabOrder(buddies, teams);
}

// The about page lies over the lists, which stay on beneath it.
ListTable* DetailPages::addList(ListView& list, const char* name, const QString& accessibleName, QWidget* parent) {
  auto* const table = new ListTable(list, name, accessibleName, parent);
  bindings_.bindUncovered(*table, list.visible, window_.PicAbout.visible);
  return table;
}

void DetailPages::makeTitle(QWidget* parent) {
  auto* const box = new InfoBox(window_.shpInfo[infoBox::listTitle], infoBox::listTitle, parent);
  box->setGeometry(titlePlace);
  auto* const title = new QLabel(box);
  title->setObjectName("lblText2_0");
  title->setGeometry(titlePlace.translated(-titlePlace.topLeft()).adjusted(titleMargin, 0, -titleMargin, 0));
  makeHeading(*title);
  bindings_.bindLabel(*title, window_.lblText2[0]);
  bindings_.bindUncovered(*box, window_.lblText2[0].visible, window_.PicAbout.visible);
}

QWidget* DetailPages::makeBuddyButton(Commands& commands, QWidget* parent) {
  auto* const button = new LvButton(parent);
  bindings_.bindCommand(*button, window_, commands, command::explainBuddies, 'D');
  button->move(buddyPlace);
  button->resize(button->sizeHint());
  return button;
}

}  // namespace vantrel

#include "desktop/window/BuddiesWindow.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/FavesListView.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/pictures/SvgPicture.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int margin = 12;
constexpr int gap = 6;
constexpr int findWidth = 30;
constexpr QSize usual{310, 300};

}  // namespace

BuddiesWindow::BuddiesWindow(frmBuddies& model, QWidget* owner)
    : SideWindow("frmBuddies", {model.visible, model.caption, model.closed}, Coming::active, 0, owner), model_(model) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addWidget(makeTitle(tr("Buddy List")));
  column->addLayout(makeName());
  column->addSpacing(gap);
  column->addLayout(makeHeader());
  column->addWidget(makeList(), 1);
  resize(usual);
  bindState(owner);
  follow();
  followFocus(model_.focusWanted);
}

QBoxLayout* BuddiesWindow::makeName() {
  auto* const name = new TextField(this);
  name->setObjectName("txtBuddy");
  name->setAccessibleName(tr("Buddy"));
  bindings().bindTextBox(*name, model_.txtBuddy);
  auto* const label = new QLabel(tr("&Buddy:"), this);
  label->setBuddy(name);
  QPushButton* const add =
      makeButton(model_.cmdMenu[frmBuddies::add], "add", 'A', [this] { model_.pressed.fire(frmBuddies::add); });
  add->setToolTip(tr("Adds the name to the list (Enter)"));
  connect(name, &QLineEdit::returnPressed, add, &QPushButton::click);
  QPushButton* const find =
      makeButton(model_.cmdMenu[frmBuddies::find], "find", 0, [this] { model_.pressed.fire(frmBuddies::find); });
  find->setIcon(pictureIcon(QStringLiteral("lens"), palette().color(QPalette::ButtonText)));
  find->setFixedWidth(findWidth);
  find->setAccessibleName(tr("Look for this name on-line"));
  find->setToolTip(tr("Asks all servers for players with this name, or a part of it"));
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(label);
  row->addWidget(name, 1);
  row->addWidget(find);
  row->addWidget(add);
  return row;
}

QBoxLayout* BuddiesWindow::makeHeader() {
  auto* const heading = new QLabel(tr("Last Found on:"), this);
  makeDim(*heading);
  QPushButton* const remove = makeButton(model_.cmdMenu[frmBuddies::remove], "remove", 'D',
                                         [this] { model_.pressed.fire(frmBuddies::remove); });
  remove->setToolTip(tr("Takes the selected buddy off the list (Delete)"));
  auto* const row = new QHBoxLayout;
  row->addWidget(heading, 1, Qt::AlignBottom);
  row->addWidget(remove);
  return row;
}

QWidget* BuddiesWindow::makeList() {
  auto* const list = new FavesListView(
      model_.myFaves1, "buddies",
      tr("No buddies yet.\n\nType a name and press Add, or right click a player in a server's list of players."), this);
  list->setAccessibleName(tr("Buddies"));
  connect(list, &FavesListView::removeAsked, this, [this] { model_.pressed.fire(frmBuddies::remove); });
  return list;
}

// What the user does by the window system is known to those who minimise and restore the window.
void BuddiesWindow::changeEvent(QEvent* event) {
  SideWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    model_.windowState.set(isMinimized() ? WindowState::minimized : WindowState::normal);
  }
}

// A window that is minimised while the game runs is brought back as it was, and does not come before the game.
void BuddiesWindow::bindState(QWidget* owner) {
  bindings().keep(model_.windowState.changed.connect([this] {
    const bool minimized = model_.windowState.get() == WindowState::minimized;
    setWindowState(windowState().setFlag(Qt::WindowMinimized, minimized));
  }));
  bindings().keep(model_.focusLeft.connect([owner] {
    if (owner != nullptr) {
      owner->raise();
      owner->activateWindow();
    }
  }));
}

}  // namespace vantrel

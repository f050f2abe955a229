#include "desktop/pages/ServerPage.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/InfoBox.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/TextField.h"
#include "desktop/grid/ServerGridView.h"
#include "desktop/pages/ProgressLine.h"

namespace vantrel {
namespace {

constexpr int edge = 12;  // from the window's sides
constexpr int gap = 6;
constexpr int wideGap = 8;
constexpr int boxMargin = 8;  // in an info box, on either side
constexpr int boxInset = 3;   // above and below
constexpr int footerGap = 10;
constexpr int totalWidth = 46;
constexpr qreal totalSize = 11;  // points
constexpr int searchLabel = 14;
constexpr int hideOption = 4;

}  // namespace

ServerPage::ServerPage(frmMain& window, Commands& commands, SweepProgress& progress, QWidget* parent)
    : QWidget(parent), window_(window), commands_(commands) {
  setObjectName("serverPage");
  setAccessibleName(tr("Servers"));
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(makeToolbar());
  grid_ = new ServerGridView(window.grdServers, this);
  connect(&grid_->table(), &ServerGridTable::rowActivated, this, &ServerPage::querySelected);
  rows->addWidget(grid_, 1);
  rows->addWidget(makeFooter(progress));
  bindings_.bindUncovered(*this, window.grdServers.visible, window.PicBG.visible);
}

// As a press of the button: it does nothing while the button is off.
void ServerPage::querySelected() {
  if (window_.cmdMenu[command::queryServer].enabled.get()) {
    commands_.cmdMenu_Click(command::queryServer);
  }
}

QWidget* ServerPage::makeToolbar() {
  auto* const toolbar = new QWidget(this);
  auto* const row = new QHBoxLayout(toolbar);
  row->setContentsMargins(edge, 2, edge, 7);
  row->setSpacing(gap);
  auto* const get = new LvButton(toolbar);
  get->setToolTip(tr("Asks the master server for all game servers and queries each of them"));
  bindings_.bindCommand(*get, window_, commands_, command::getServerList, 'H');
  get->setFocus();
  row->addWidget(get);
  row->addSpacing(wideGap);
  addSearch(*addBox(*row, infoBox::search));
  row->addStretch(1);
  QBoxLayout* const totals = addBox(*row, infoBox::totals);
  bindings_.bindLabel(*addTotal(*totals, "txtPlayers", tr("Players"), window_.txtPlayers), window_.lblPlayers);
  addTotal(*totals, "txtCTF", tr("CTF"), window_.txtCTF);
  addTotal(*totals, "txtSlayer", tr("Slayer"), window_.txtSlayer);
  addTotal(*totals, "txtOther", tr("Other"), window_.txtOther);
  return toolbar;
}

QBoxLayout* ServerPage::addBox(QBoxLayout& row, infoBox::Number number) {
  auto* const box = new InfoBox(window_.shpInfo[number], number, this);
  auto* const inside = new QHBoxLayout(box);
  inside->setContentsMargins(boxMargin, boxInset, boxMargin, boxInset);
  inside->setSpacing(gap);
  row.addWidget(box);
  return inside;
}

void ServerPage::addSearch(QBoxLayout& row) {
  auto* const caption = new QLabel(this);
  auto* const name = new TextField(this);
  auto* const go = new LvButton(this);
  caption->setObjectName("lblText14");
  caption->setBuddy(name);
  bindings_.bindLabel(*caption, window_.lblText[searchLabel], 'Y');
  name->setObjectName("txtPlayer");
  name->setAccessibleName(tr("Player"));
  name->setToolTip(tr("Name of a player to look for on all servers"));
  name->setMinimumWidth(90);
  name->setMaximumWidth(130);
  bindings_.bindTextBox(*name, window_.txtPlayer);
  go->setToolTip(tr("Queries all servers and shows those on which the player is"));
  bindings_.bindCommand(*go, window_, commands_, command::findPlayer);
  row.addWidget(caption);
  row.addWidget(name);
  row.addWidget(go);
}

QLabel* ServerPage::addTotal(QBoxLayout& row, const char* name, const QString& caption, TextBox& model) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(0);
  auto* const number = new QLabel(this);
  QFont large = number->font();
  large.setPointSizeF(totalSize);
  number->setFont(large);
  number->setObjectName(name);
  number->setAccessibleName(caption);
  number->setAlignment(Qt::AlignRight);
  number->setMinimumWidth(totalWidth);
  bindings_.bindNumber(*number, model.text);
  auto* const label = new QLabel(caption, this);
  label->setAlignment(Qt::AlignRight);
  column->addWidget(number);
  column->addWidget(label);
  row.addLayout(column);
  return label;
}

QWidget* ServerPage::makeFooter(SweepProgress& progress) {
  auto* const footer = new ProgressLine(progress, this);
  auto* const row = new QHBoxLayout(footer);
  row->setContentsMargins(edge, ProgressLine::barHeight + 5, edge, 5);
  row->setSpacing(footerGap);
  auto* const box = new InfoBox(window_.shpInfo[infoBox::hide], infoBox::hide, footer);
  auto* const inside = new QHBoxLayout(box);
  inside->setContentsMargins(boxMargin, boxInset, boxMargin, boxInset);
  auto* const hide = new QCheckBox(box);
  inside->addWidget(hide);
  hide->setObjectName("chkOptions4");
  bindings_.bindCheckBox(*hide, window_.chkOptions[hideOption]);
  hide->setAccessibleName(hide->text());
  auto* const exportList = new LvButton(footer);
  exportList->setToolTip(tr("Writes the server list to a file"));
  bindings_.bindCommand(*exportList, window_, commands_, command::exportServers, 'X');
  auto* const count = new QLabel(footer);
  count->setObjectName("lblCount");
  count->setAccessibleName(tr("Server count"));
  count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  bindings_.bindNumber(*count, window_.lblCount.caption);
  row->addWidget(box);
  row->addWidget(&footer->message(), 1);
  row->addWidget(count);
  row->addWidget(exportList);
  return footer;
}

}  // namespace vantrel

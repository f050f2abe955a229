#include "desktop/window/HeaderStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "desktop/controls/InfoBox.h"
#include "desktop/controls/Inks.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/PlainText.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {
namespace {

constexpr int edge = 12;         // from the window's sides
constexpr int tabsHeight = 40;   // of the first row
constexpr int playersImage = 3;  // of the server list's images
constexpr int serverRowGap = 6;
constexpr int boxMargin = 8;  // in the box around the address
constexpr int boxInset = 3;

// The strip is always there, so its letters, together with the digits of none, are taken on every page:
// A B C E F G I L M O P Q R S T V. The pages choose from D H J K N U W X Y Z.
constexpr std::pair<command::Number, char> pageTabs[] = {
    {command::showServers, 'S'}, {command::showFaves, 'F'},    {command::showCurrentGame, 'G'},
    {command::showPlayers, 'P'}, {command::showMisc, 'M'},     {command::showVehicles, 'V'},
    {command::showTools, 'T'},   {command::showSettings, 'E'}, {command::showAbout, 'A'},
};

constexpr int noPage = -1;

// What a page is told by, from the uppermost down. The background belongs to no page and covers the server list.
std::vector<std::pair<Field<bool>*, int>> pagesFromTheTop(frmMain& window) {
  return {
      {&window.picFaves.visible, command::showFaves},
      {&window.picTools.visible, command::showTools},
      {&window.picSettings.visible, command::showSettings},
      {&window.PicAbout.visible, command::showAbout},
      {&window.ListView4.visible, command::showCurrentGame},
      {&window.ListView2.visible, command::showPlayers},
      {&window.ListView1.visible, command::showMisc},
      {&window.ListView5.visible, command::showVehicles},
      {&window.PicBG.visible, noPage},
      {&window.grdServers.visible, command::showServers},
  };
}

}  // namespace

int pageOnShow(frmMain& window) {
  for (const auto& [visible, page] : pagesFromTheTop(window)) {
    if (visible->get()) {
      return page;
    }
  }
  return noPage;
}

HeaderStrip::HeaderStrip(frmMain& window, Commands& commands, QWidget* parent)
    : QWidget(parent), window_(window), commands_(commands) {
  setObjectName("header");
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(makeTabs());
  rows->addWidget(makeServer(), 1);
  bindings_.keep(window_.Line1.borderColor.changed.connect([this] { update(); }));
  followPages();
}

QWidget* HeaderStrip::makeTabs() {
  auto* const tabs = new QWidget(this);
  tabs->setFixedHeight(tabsHeight);
  auto* const row = new QHBoxLayout(tabs);
  row->setContentsMargins(edge - 4, 0, edge - 4, 0);
  row->setSpacing(0);
  for (const auto& [number, mnemonic] : pageTabs) {
    addTab(*row, number, mnemonic);
  }
  row->addStretch(1);
  addBuddies(*row);
  return tabs;
}

void HeaderStrip::addTab(QBoxLayout& row, int number, char mnemonic) {
  auto* const tab = new PageTab(this);
  bindings_.bindCommand(*tab, window_, commands_, number, mnemonic);
  row.addWidget(tab);
  tabs_[number] = tab;
}

void HeaderStrip::addBuddies(QBoxLayout& row) {
  auto* const button = new PageTab(this);
  button->setIcon(gridIcon(playersImage));
  button->setToolTip(tr("Buddies"));
  bindings_.bindCommand(*button, window_, commands_, command::toggleBuddies);
  button->setAccessibleName(tr("Buddies"));
  button->setShortcut(QKeySequence(Qt::ALT | Qt::Key_B));
  row.addWidget(button);
}

QWidget* HeaderStrip::makeServer() {
  auto* const server = new QWidget(this);
  auto* const row = new QHBoxLayout(server);
  row->setContentsMargins(edge, 0, edge, 1);
  row->setSpacing(serverRowGap);
  auto* const box = new InfoBox(window_.shpInfo[infoBox::currentServer], infoBox::currentServer, server);
  auto* const boxes = new QHBoxLayout(box);
  boxes->setContentsMargins(boxMargin, boxInset, boxInset, boxInset);
  boxes->setSpacing(serverRowGap);
  addBox(*boxes, {12, 'I'}, "txtIP", window_.txtIP, 132);
  boxes->addSpacing(serverRowGap);
  addBox(*boxes, {13, 'R'}, "txtPort", window_.txtPort, 54);
  row->addWidget(box, 0, Qt::AlignVCenter);
  row->addSpacing(serverRowGap);
  addCommand(*row, command::queryServer, 'Q', tr("Asks the current server what is going on"));
  addCommand(*row, command::launchGame, 'L', tr("Starts the game and joins the current server"));
  row->addStretch(1);
  addCommand(*row, command::addCurrentFave, 'O', tr("Adds the current server to the favorites"));
  addCommand(*row, command::clearServer, 'C', tr("Forgets the current server"));
  makePrimary(*findChild<QPushButton*>(QStringLiteral("cmdMenu%1").arg(+command::queryServer)));
  return server;
}

void HeaderStrip::addBox(QBoxLayout& row, BoxLabel label, const char* name, TextBox& model, int width) {
  auto* const caption = new QLabel(this);
  auto* const box = new TextField(this);
  caption->setObjectName(QStringLiteral("lblText%1").arg(label.number));
  caption->setBuddy(box);
  bindings_.bindLabel(*caption, window_.lblText[static_cast<std::size_t>(label.number)], label.mnemonic);
  box->setObjectName(name);
  box->setAccessibleName(caption->text().remove(QLatin1Char('&')).remove(QLatin1Char(':')));
  box->setFixedWidth(width);
  bindings_.bindTextBox(*box, model);
  row.addWidget(caption);
  row.addWidget(box);
}

void HeaderStrip::addCommand(QBoxLayout& row, int number, char mnemonic, const QString& toolTip) {
  auto* const button = new LvButton(this);
  button->setToolTip(toolTip);
  bindings_.bindCommand(*button, window_, commands_, number, mnemonic);
  row.addWidget(button);
}

void HeaderStrip::followPages() {
  for (const auto& [visible, page] : pagesFromTheTop(window_)) {
    bindings_.keep(visible->changed.connect([this] { markPageOnShow(); }));
  }
  markPageOnShow();
}

void HeaderStrip::markPageOnShow() {
  const int page = pageOnShow(window_);
  for (const auto& [number, tab] : tabs_) {
    tab->setMark(number == page ? PageMark::onShow : PageMark::none);
  }
}

QWidget* HeaderStrip::tabOnShow() const {
  const auto found = tabs_.find(pageOnShow(window_));
  return found == tabs_.end() ? nullptr : found->second;
}

void HeaderStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window);
  painter.fillRect(rect(), ground);
  painter.fillRect(0, height() - 1, width(), 1, screenColor(window_.Line1.borderColor.get()));
}

}  // namespace vantrel

#include "desktop/pages/SettingsPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/controls/IndicatorPicture.h"
#include "desktop/controls/InfoBox.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/OptionPair.h"
#include "desktop/controls/PlainText.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// The columns of a card: labels, boxes, and what stands behind a box.
constexpr int labels = 0;
constexpr int boxes = 1;
constexpr int behind = 2;
constexpr int all = 3;

constexpr int cardMargin = 5;  // above and below what stands in a card
constexpr int rowGap = 3;
constexpr int shortestTheme = 8;         // characters of a theme's name that are always seen
constexpr int cardGap = 4;               // also between a heading and its box
constexpr qreal headingSize = 10;        // points
constexpr QColor deepField{16, 17, 20};  // behind a text that may be red

// A button that is never to be pressed and heads a card: it looks like the other headings.
class HeadingButton : public LvButton {
 public:
  using LvButton::LvButton;

  QSize sizeHint() const override { return fontMetrics().size(Qt::TextSingleLine, text()); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text());
  }
};

QWidget* makeHeadingButton(Bindings& bindings, frmMain& window, Commands& commands, QWidget* parent) {
  auto* const heading = new HeadingButton(parent);
  QFont font = heading->font();
  font.setPointSizeF(headingSize);
  font.setBold(true);
  heading->setFont(font);
  heading->setFocusPolicy(Qt::NoFocus);
  bindings.bindCommand(*heading, window, commands, command::startupHeading);
  return heading;
}

}  // namespace

SettingsPage::SettingsPage(frmMain& window, frmMsg& question, Commands& commands, QWidget* parent)
    : PagePanel(window.picSettings, "picSettings", parent),
      window_(window),
      question_(question),
      commands_(commands),
      parts_(bindings(), window, commands) {
  setAccessibleName(tr("Settings"));
  auto* const cards = new QVBoxLayout(makeScrolled());
  cards->setContentsMargins(page::edge, page::top, page::half, page::top);
  cards->setSpacing(cardGap);
  addGame(*cards);
  addStartup(*cards);
  addQueries(*cards);
  addAnnouncements(*cards);
  addAtStart(*cards);
  addThemes(*cards);
  addChat(*cards);
  cards->addStretch(1);
  lineUp();
}

// A window that is too low for all of it scrolls it.
QWidget* SettingsPage::makeScrolled() {
  auto* const area = new QScrollArea(content());
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setWidgetResizable(true);
  area->viewport()->setAutoFillBackground(false);
  auto* const filled = new QVBoxLayout(content());
  filled->setContentsMargins(0, 0, 0, 0);
  filled->addWidget(area);
  scrolled_ = new QWidget(area->viewport());
  area->setWidget(scrolled_);
  scrolled_->setAutoFillBackground(false);
  return scrolled_;
}

QGridLayout* SettingsPage::addCard(QBoxLayout& cards, QWidget* heading, infoBox::Number number) {
  auto* const above = new QHBoxLayout;
  above->setContentsMargins(page::padding, 0, page::padding, 0);
  above->addWidget(heading);
  above->addStretch(1);
  cards.addLayout(above);
  auto* const card = new InfoBox(window_.shpInfo[number], number, scrolled_);
  headings_[number] = above;
  auto* const grid = new QGridLayout(card);
  grid->setContentsMargins(page::padding, cardMargin, page::padding, cardMargin);
  grid->setHorizontalSpacing(page::gap);
  grid->setVerticalSpacing(rowGap);
  grid->setColumnStretch(boxes, 1);
  cards.addWidget(card);
  grids_.push_back(grid);
  return grid;
}

void SettingsPage::addGame(QBoxLayout& cards) {
  QGridLayout* const grid = addCard(cards, parts_.heading(2, scrolled_), infoBox::game);
  auto* const path = new TextField(scrolled_);
  path->setObjectName("txtHaloPath");
  QPalette deep = path->palette();
  deep.setColor(QPalette::Base, deepField);
  path->setPalette(deep);
  bindings().bindPath(*path, window_.txtHaloPath);
  const auto showWhole = [path](const QString& text) { path->setToolTip(plainToolTip(text)); };
  showWhole(path->text());
  connect(path, &QLineEdit::textChanged, path, showWhole);
  headings_[infoBox::game]->addLayout(makeGameStatus());
  grid->addWidget(label(15, path, 'D'), 1, labels);
  grid->addWidget(path, 1, boxes);
  grid->addWidget(parts_.button(command::locateGame, scrolled_, 0, tr("Asks where haloce.exe is")), 1, behind);
}

QBoxLayout* SettingsPage::makeGameStatus() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(page::gap);
  auto* const lamp = new IndicatorPicture(window_.picExeStatus, "picExeStatus", tr("The game's folder"), scrolled_);
  lamp->setFocusPolicy(Qt::NoFocus);
  auto* const status = new QLabel(scrolled_);
  status->setObjectName("lblExeStatus");
  bindings().bindLabel(*status, window_.lblExeStatus);
  row->addWidget(lamp);
  row->addWidget(status);
  return row;
}

void SettingsPage::addStartup(QBoxLayout& cards) {
  QGridLayout* const grid =
      addCard(cards, makeHeadingButton(bindings(), window_, commands_, scrolled_), infoBox::startup);
  grid->addWidget(option(0, tr("Lets the Print Screen key save a picture of the game")), 1, labels);
  grid->addWidget(option(1, tr("Opens the game's console to you")), 1, boxes);
  grid->addWidget(option(2, tr("The game does not look for joysticks and gamepads")), 2, labels);
  grid->addWidget(option(3, tr("Skips the films at the game's start")), 2, boxes);
  QComboBox* const further = parts_.comboBox("cmbVid", window_.cmbVid, PageParts::Text::free, scrolled_,
                                             tr("Put behind haloce.exe as it stands here"));
  grid->addWidget(label(16, further, 'N'), 3, labels);
  grid->addWidget(further, 3, boxes, 1, all - boxes);
}

void SettingsPage::addQueries(QBoxLayout& cards) {
  QGridLayout* const grid = addCard(cards, parts_.heading(3, scrolled_), infoBox::queries);
  QComboBox* const tab = parts_.comboBox("cmbShowTab", window_.cmbShowTab, PageParts::Text::ofTheList, scrolled_,
                                         tr("The page that opens when the current server has answered"));
  tab->setAccessibleName(tr("Show after query"));
  auto* const row = new QHBoxLayout;
  row->setSpacing(page::gap);
  row->addWidget(tab);
  row->addWidget(label(18));
  row->addStretch(1);
  grid->addWidget(label(17, tab, 'W'), 1, labels);
  grid->addLayout(row, 1, boxes, 1, all - boxes);
  addAutoJoin(*grid);
}

void SettingsPage::addAutoJoin(QGridLayout& grid) {
  auto* const lamp = new IndicatorPicture(window_.picJoin, "picJoin", tr("Auto join"), scrolled_);
  lamp->setToolTip(tr("Whether a full server is asked again and again until it has a place"));
  auto* const pair = new OptionPair(bindings(), window_, commands_, {command::autoJoinOn}, {command::autoJoinOff},
                                    tr("Auto join"), scrolled_);
  pair->left().setToolTip(tr("Waits for a place on a full server, then joins it"));
  pair->right().setToolTip(tr("A full server is left alone"));
  auto* const row = new QHBoxLayout;
  row->setSpacing(page::gap);
  row->addWidget(label(20, &pair->left(), 'J'));
  row->addWidget(lamp);
  row->addStretch(1);
  grid.addWidget(label(19), 2, labels);
  grid.addLayout(row, 2, boxes, 1, all - boxes);
  grid.addWidget(pair, 3, boxes, 1, all - boxes);
  grid.addWidget(makeNeverAsk(), 4, boxes, 1, all - boxes);
}

// The caption that the model has is the one in the window that asks, and points to this page.
QCheckBox* SettingsPage::makeNeverAsk() {
  QCheckBox* const box = parts_.checkBox("chkMsg", question_.chkMsg, scrolled_,
                                         tr("Never asks whether to wait for a free slot when a server is full"));
  box->setText(tr("Never A&utoJoin"));
  box->setAccessibleName(tr("Never AutoJoin"));
  return box;
}

void SettingsPage::addAnnouncements(QBoxLayout& cards) {
  QGridLayout* const grid = addCard(cards, parts_.heading(4, scrolled_), infoBox::announcements);
  grid->addWidget(option(5, tr("Tells the channel below about your server")), 1, labels, 1, all);
  TextField* const channel =
      parts_.box("mircChan", window_.mircChan, scrolled_, tr("Name of the mIRC channel that is told"));
  grid->addWidget(label(22, channel, 'H'), 2, labels);
  grid->addWidget(channel, 2, boxes, 1, all - boxes);
}

void SettingsPage::addAtStart(QBoxLayout& cards) {
  auto* const row = new QHBoxLayout;
  row->setContentsMargins(page::padding, 0, page::padding, 0);
  row->setSpacing(2 * page::gap);
  row->addWidget(parts_.heading(5, scrolled_));
  row->addWidget(
      parts_.checkBox("chkSplash", window_.chkSplash, scrolled_, tr("The window opens at once, without a splash")));
  row->addWidget(parts_.checkBox("chkOldSplash", window_.chkOldSplash, scrolled_, tr("Kept from older versions")));
  row->addStretch(1);
  cards.addLayout(row);
}

// Which theme is chosen changes nothing.
void SettingsPage::addThemes(QBoxLayout& cards) {
  auto* const caption = new QLabel(scrolled_);
  caption->setObjectName("lblThemes");
  bindings().bindLabel(*caption, window_.lblThemes, 'Z');
  QComboBox* const themes = parts_.comboBox("cmbThemes", window_.cmbThemes, PageParts::Text::ofTheList, scrolled_);
  themes->setAccessibleName(tr("Color themes"));
  themes->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  themes->setMinimumContentsLength(shortestTheme);
  caption->setBuddy(themes);
  auto* const own = new LvButton(scrolled_);
  own->setObjectName("cmdColors");
  own->setText(fromCp1252(window_.cmdColors.caption.get()));
  own->setAccessibleName(tr("Colors"));
  bindings().bindColors(*own, window_.cmdMenu[command::locateGame]);  // It looks as its neighbours do.
  own->setToolTip(tr("Opens the window in which you choose the colors of this one"));
  connect(own, &QPushButton::clicked, this, [this] { window_.colorsClicked.fire(); });
  auto* const row = new QHBoxLayout;
  row->setContentsMargins(page::padding, 0, page::padding, 0);
  row->setSpacing(page::gap);
  row->addWidget(caption);
  row->addWidget(themes, 1);
  row->addWidget(own);
  cards.addLayout(row);
}

void SettingsPage::addChat(QBoxLayout& cards) {
  auto* const box = new InfoBox(window_.shpInfo[infoBox::chat], infoBox::chat, scrolled_);
  auto* const inside = new QHBoxLayout(box);
  inside->setContentsMargins(page::padding, rowGap, page::padding, rowGap);
  inside->addWidget(option(6, tr("Not there yet")));
  auto* const row = new QHBoxLayout;
  row->addWidget(box);
  row->addStretch(1);
  cards.addLayout(row);
}

QCheckBox* SettingsPage::option(int number, const QString& toolTip) {
  return parts_.checkBox(QStringLiteral("chkOptions%1").arg(number),
                         window_.chkOptions[static_cast<std::size_t>(number)], scrolled_, toolTip);
}

QLabel* SettingsPage::label(int number, QWidget* buddy, char mnemonic) {
  return parts_.label(number, scrolled_, buddy, mnemonic);
}

// The first column is as wide in every card as in the one that needs most.
void SettingsPage::lineUp() {
  int width = 0;
  for (QGridLayout* const grid : grids_) {
    for (int row = 1; row < grid->rowCount(); ++row) {
      const QLayoutItem* const item = grid->itemAtPosition(row, labels);
      if (item != nullptr && item != grid->itemAtPosition(row, boxes)) {
        width = std::max(width, item->sizeHint().width());
      }
    }
  }
  for (QGridLayout* const grid : grids_) {
    grid->setColumnMinimumWidth(labels, width);
  }
}

}  // namespace vantrel

// The page of the settings: a card for each group, with labels and boxes in the same two columns in all of them.
#pragma once

#include <map>
#include <vector>

#include "core/SideWindows.h"
#include "desktop/pages/PagePanel.h"
#include "desktop/pages/PageParts.h"

class QBoxLayout;
class QGridLayout;

namespace vantrel {

class SettingsPage : public PagePanel {
  Q_OBJECT

 public:
  // All three must outlive the page. The window that asks whether to wait for a server, `question`, has a switch here.
  SettingsPage(frmMain& window, frmMsg& question, Commands& commands, QWidget* parent);

 private:
  QWidget* makeScrolled();
  // A box beneath its heading, with two columns and one that takes what is left.
  QGridLayout* addCard(QBoxLayout& cards, QWidget* heading, infoBox::Number number);
  void addGame(QBoxLayout& cards);
  void addStartup(QBoxLayout& cards);
  void addQueries(QBoxLayout& cards);
  void addAutoJoin(QGridLayout& grid);
  QCheckBox* makeNeverAsk();
  void addAnnouncements(QBoxLayout& cards);
  void addAtStart(QBoxLayout& cards);
  void addThemes(QBoxLayout& cards);
  void addChat(QBoxLayout& cards);
  QBoxLayout* makeGameStatus();
  QCheckBox* option(int number, const QString& toolTip);
  QLabel* label(int number, QWidget* buddy = nullptr, char mnemonic = 0);
  void lineUp();

  frmMain& window_;
  frmMsg& question_;
  Commands& commands_;
  PageParts parts_;
  QWidget* scrolled_ = nullptr;
  std::vector<QGridLayout*> grids_;
  std::map<int, QBoxLayout*> headings_;  // the rows above the boxes
};

}  // namespace vantrel

// The strip along the window's upper edge: in its first row a tab for each page, in its second the current server and
// what is done with it.
#pragma once

#include <QWidget>
#include <map>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"
#include "desktop/window/PageTab.h"

class QBoxLayout;

namespace vantrel {

class HeaderStrip : public QWidget {
  Q_OBJECT

 public:
  static constexpr int stripHeight = 88;  // pixels at 100 %

  // Both must outlive the strip.
  HeaderStrip(frmMain& window, Commands& commands, QWidget* parent);

  // The tab of the page that the user sees; none when there is no such page.
  QWidget* tabOnShow() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct BoxLabel {
    int number;
    char mnemonic;
  };

  QWidget* makeTabs();
  void addTab(QBoxLayout& row, int number, char mnemonic);
  void addBuddies(QBoxLayout& row);
  QWidget* makeServer();
  void addBox(QBoxLayout& row, BoxLabel label, const char* name, TextBox& model, int width);
  void addCommand(QBoxLayout& row, int number, char mnemonic, const QString& toolTip);
  void followPages();
  void markPageOnShow();

  frmMain& window_;
  Commands& commands_;
  std::map<int, PageTab*> tabs_;
  Bindings bindings_;
};

// The number of the page that the user sees, the uppermost one that is shown; -1 when there is none.
int pageOnShow(frmMain& window);

}  // namespace vantrel

#include "desktop/window/MainWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <set>

#include "appearance/WindowLayout.h"
#include "browser/InputBoxes.h"
#include "browser/Pages.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/Theme.h"
#include "desktop/window/PageTab.h"

namespace vantrel {
namespace {

constexpr QSize designSize(671, 553);

constexpr int designPages[] = {command::showServers, command::showPlayers, command::showFaves,
                               command::showTools,   command::showAbout,   command::showSettings};

struct NoNotices : Notices {
  void ShowPopMsg(const std::string& /*text*/) override {}
  void popUpBalloon(const std::string& /*text*/, const std::string& /*title*/) override {}
};

// The main window on the screen, on the page of the servers, with what the pages and the boxes do.
struct MainWindowTest : ::testing::Test {
  MainWindowTest() {
    layout.layoutPanels();
    window.resize(designSize);
    commands.cmdMenu_Click(command::showServers);
    model.visible.set(true);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    settle();
  }

  ~MainWindowTest() override { QApplication::setFont(fontBefore); }

  template <class T = QWidget>
  T* find(const QString& name) {
    return window.findChild<T*>(name);
  }
  bool sees(const char* name) { return find(name) != nullptr && find(name)->isVisible(); }
  void press(int number) { QTest::mouseClick(find(QStringLiteral("cmdMenu%1").arg(number)), Qt::LeftButton); }
  // Lets everything that waits for its turn happen.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
  static QString focus() {
    return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
  }
  // The names of what the tab key reaches, from the box of the address once around.
  std::string tabRound() {
    find("txtIP")->setFocus();
    QStringList names;
    do {
      names << focus();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (focus() != "txtIP" && names.size() < 200);
    return names.join(' ').toStdString();
  }
  // The numbers of the tabs that are marked as the page on show.
  std::set<int> markedPages() {
    std::set<int> marked;
    for (PageTab* const tab : window.findChildren<PageTab*>()) {
      if (tab->mark() == PageMark::onShow) {
        marked.insert(tab->objectName().mid(7).toInt());
      }
    }
    return marked;
  }

  QtLoop loop;
  NoNotices notices;
  frmMain model{loop};
  Commands commands{model, notices};
  Pages pages{model, commands, notices};
  InputBoxes boxes{model, commands, notices, loop};
  WindowLayout layout{model};
  SweepProgress progress;
  frmMsg question{loop};
  QFont fontBefore = QApplication::font();
  bool themed = (applyTheme(*qApp), true);
  MainWindow window{model, commands, progress, question};
};

TEST_F(MainWindowTest, a_click_on_a_tab_shows_its_page_alone_and_marks_the_tab) {
  const std::pair<int, std::set<std::string>> all[] = {
      {command::showServers, {"grdServers", "cmdMenu32", "lblCount"}},
      {command::showCurrentGame, {"PicBG", "ListView4", "ListView3", "picScore", "lblText2_0"}},
      {command::showPlayers, {"PicBG", "ListView2", "ListView3", "picScore", "lblText2_0", "cmdMenu42"}},
      {command::showMisc, {"PicBG", "ListView1", "ListView3", "picScore", "lblText2_0"}},
      {command::showVehicles, {"PicBG", "ListView5", "ListView3", "picScore", "lblText2_0"}},
      {command::showSettings, {"PicBG", "picSettings", "picRef"}},
      {command::showTools, {"PicBG", "picTools", "picRef"}},
      {command::showFaves, {"PicBG", "picFaves", "picFaves2", "picRef", "PicAbout"}},
      {command::showAbout, {"PicBG", "PicAbout"}},
  };
  std::set<std::string> parts;
  for (const auto& [number, shown] : all) {
    parts.insert(shown.begin(), shown.end());
  }
  for (const auto& [number, shown] : all) {
    press(number);
    EXPECT_EQ(markedPages(), std::set<int>{number});
    for (const std::string& part : parts) {
      EXPECT_EQ(sees(part.c_str()), shown.count(part) == 1) << part << " on page " << number;
    }
  }
}

TEST_F(MainWindowTest, the_tab_key_goes_from_the_header_through_the_page_as_the_eye_does_and_to_nothing_beneath) {
  model.cmdMenu[command::clearFaveEditor].enabled.set(true);
  model.mircChan.enabled.set(true);
  const std::string score = " ListView3 cmdMenu41 picRefresh cmdMenu30 cmdMenu31 cmdMenu19";
  const std::pair<int, std::string> rounds[] = {
      {command::showServers, " cmdMenu32 txtPlayer cmdMenu23 grdServersTable chkOptions4 cmdMenu14"},
      {command::showPlayers, " ListView2 cmdMenu42" + score},
      {command::showSettings,
       " txtHaloPath cmdMenu15 chkOptions0 chkOptions1 chkOptions2 chkOptions3 cmbVid cmbShowTab picJoin cmdMenu10"
       " cmdMenu0 chkMsg chkOptions5 mircChan chkSplash chkOldSplash cmbThemes cmdColors chkOptions6 txtFAQ"},
      {command::showTools, " lstApps cmdMenu37 txtFAQ"},
      {command::showFaves,
       " myFaves1 cmdMenu27 cmdMenu36 cmdMenu28 cmdMenu34 txtID txtServerName txtIP2 txtPort2 cmbGameType txtPass"
       " List1 cmdMenu24 cmdMenu25 cmdMenu26 txtFAQ"},
      {command::showAbout, ""},
      {command::showCurrentGame, " ListView4" + score},
  };
  for (const auto& [page, names] : rounds) {
    press(command::showServers);
    press(page);
    EXPECT_EQ(tabRound(),
              "txtIP txtPort cmdMenu12 cmdMenu18 cmdMenu39 cmdMenu11" + names +
                  " cmdMenu9 cmdMenu6 cmdMenu1 cmdMenu2 cmdMenu3 cmdMenu4 cmdMenu7 cmdMenu5 cmdMenu16 cmdMenu8");
  }
  EXPECT_TRUE(model.grdServers.visible.get()) << "the servers stay on beneath";
}

TEST_F(MainWindowTest, the_focus_is_on_the_main_button_at_first_and_never_goes_with_a_page) {
  EXPECT_EQ(focus(), "cmdMenu32");
  const std::pair<int, const char*> changes[] = {{command::showPlayers, "ListView2"},
                                                 {command::showVehicles, "ListView5"},
                                                 {command::showServers, "cmdMenu32"},
                                                 {command::showAbout, "cmdMenu16"}};
  for (const auto& [number, first] : changes) {
    commands.cmdMenu_Click(number);
    settle();
    EXPECT_EQ(focus(), first);
  }
  find("txtPort")->setFocus();
  commands.cmdMenu_Click(command::showMisc);
  settle();
  EXPECT_EQ(focus(), "txtPort") << "what is still there keeps the focus";
}

TEST_F(MainWindowTest, on_each_page_what_takes_keys_has_a_name_and_no_letter_leads_to_two_places) {
  for (const int page : designPages) {
    press(page);
    std::set<QString> letters;
    for (const QWidget* const part : window.findChildren<QWidget*>()) {
      const auto* const button = qobject_cast<const QAbstractButton*>(part);
      const auto* const label = qobject_cast<const QLabel*>(part);
      const bool leads = part->isVisible() && (button != nullptr || (label != nullptr && label->buddy() != nullptr));
      const QString letter = leads ? QKeySequence::mnemonic(button ? button->text() : label->text()).toString() : "";
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << letter.toStdString() << " on page " << page;
      const bool takesKeys = part->isVisible() && (part->focusPolicy() & Qt::TabFocus) != 0 && !part->focusProxy();
      EXPECT_FALSE(takesKeys && (part->objectName().isEmpty() || part->accessibleName().isEmpty()))
          << part->objectName().toStdString() << " on page " << page;
    }
  }
}

TEST_F(MainWindowTest, no_caption_is_cut_at_the_design_size_in_a_narrow_or_a_wide_font) {
  model.lblExeStatus.caption.set("Please locate Halo CE");
  for (const char* const family : {"Liberation Sans", "DejaVu Sans"}) {
    QFont font = QApplication::font();
    font.setFamilies({family});
    QApplication::setFont(font);
    MainWindow fresh(model, commands, progress, question);
    fresh.resize(designSize);
    for (const int page : designPages) {
      commands.cmdMenu_Click(page);
      settle();
      for (const QWidget* const part : fresh.findChildren<QWidget*>()) {
        const bool caption =
            qobject_cast<const QPushButton*>(part) != nullptr || qobject_cast<const QCheckBox*>(part) != nullptr ||
            (qobject_cast<const QLabel*>(part) != nullptr && qobject_cast<const ElidedLabel*>(part) == nullptr);
        if (caption && part->isVisible()) {
          EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString() << family;
          EXPECT_GE(part->height(), part->fontMetrics().height()) << part->objectName().toStdString() << family;
          EXPECT_TRUE(fresh.rect().contains(QRect(part->mapTo(&fresh, QPoint()), part->size())));
        }
      }
    }
  }
  EXPECT_EQ(find("picSettings")->findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
}

TEST_F(MainWindowTest, an_address_with_a_port_that_is_pasted_fills_both_boxes) {
  QGuiApplication::clipboard()->setText(" 1.2.3.4:2302 ");
  find<QLineEdit>("txtIP")->paste();
  EXPECT_EQ(find<QLineEdit>("txtIP")->text(), "1.2.3.4");
  EXPECT_EQ(find<QLineEdit>("txtPort")->text(), "2302");
}

TEST_F(MainWindowTest, the_panels_follow_the_layout_and_the_model_knows_the_size_state_and_end_of_the_window) {
  press(command::showPlayers);
  EXPECT_EQ(find("ListView2")->geometry(), QRect(40, 144, 275, 317));
  EXPECT_TRUE(find("ListView3")->isAncestorOf(window.childAt(500, 330))) << "the teams lie upon the summary";
  int told = 0;
  int asked = 0;
  const Connection resizing = model.resized.connect([&told] { ++told; });
  const Connection closing = window.closed.connect([&asked] { ++asked; });
  window.resize(720, 600);
  settle();
  EXPECT_EQ(told, 1);
  EXPECT_EQ(model.Width, static_cast<float>(window.frameGeometry().width()) * 15);
  EXPECT_EQ(find("PicBG")->width(), window.frameGeometry().width() - 260);
  const float height = model.Height;
  model.windowState.set(WindowState::minimized);
  settle();
  EXPECT_TRUE(window.isMinimized());
  EXPECT_GE(told, 2);
  EXPECT_EQ(model.Height, height);
  window.setWindowState(Qt::WindowMaximized);
  settle();
  EXPECT_EQ(model.windowState.get(), WindowState::maximized);
  EXPECT_TRUE(window.close());
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace vantrel

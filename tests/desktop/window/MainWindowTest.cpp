#include "desktop/window/MainWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <set>

#include "appearance/WindowLayout.h"
#include "browser/InputBoxes.h"
#include "browser/Pages.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/Theme.h"
#include "desktop/window/HeaderStrip.h"
#include "desktop/window/PageTab.h"

namespace vantrel {
namespace {

constexpr QSize designSize(671, 553);

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
  QStringList tabRound() {
    find("txtIP")->setFocus();
    QStringList names;
    do {
      names << focus();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (focus() != "txtIP" && names.size() < 200);
    return names;
  }
  int markedPage() {
    int marked = -1;
    for (PageTab* const tab : window.findChildren<PageTab*>()) {
      if (tab->mark() == PageMark::onShow) {
        EXPECT_EQ(marked, -1) << "two pages are marked";
        marked = tab->objectName().mid(7).toInt();
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
  QFont fontBefore = QApplication::font();
  bool themed = (applyTheme(*qApp), true);
  MainWindow window{model, commands, progress};
};

TEST_F(MainWindowTest, a_click_on_a_tab_shows_its_page_alone_and_marks_the_tab) {
  struct Page {
    int number;
    std::set<std::string> shown;
  };
  const Page all[] = {
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
  for (const Page& page : all) {
    parts.insert(page.shown.begin(), page.shown.end());
  }
  for (const Page& page : all) {
    press(page.number);
    EXPECT_EQ(markedPage(), page.number);
    for (const std::string& part : parts) {
      EXPECT_EQ(sees(part.c_str()), page.shown.count(part) == 1) << part << " on page " << page.number;
    }
  }
}

TEST_F(MainWindowTest, the_server_list_that_stays_on_beneath_another_page_is_out_of_the_tab_keys_way) {
  EXPECT_TRUE(tabRound().contains("grdServersTable"));
  press(command::showCurrentGame);
  ASSERT_TRUE(model.grdServers.visible.get());
  const QStringList round = tabRound();
  EXPECT_FALSE(round.contains("grdServersTable"));
  EXPECT_FALSE(round.contains("cmdMenu32"));
}

TEST_F(MainWindowTest, the_tab_key_leads_only_to_what_lies_open) {
  for (const int page : {+command::showFaves, +command::showAbout, +command::showSettings, +command::showTools}) {
    press(page);
    for (const QString& name : tabRound()) {
      const QWidget& part = *find(name);
      const QWidget* const above = window.childAt(part.mapTo(&window, part.rect().center()));
      EXPECT_TRUE(above == &part || part.isAncestorOf(above) || !part.visibleRegion().contains(part.rect().center()))
          << name.toStdString() << " is covered on page " << page;
    }
  }
}

TEST_F(MainWindowTest, the_tab_key_goes_from_the_header_through_the_page_as_the_eye_does) {
  const QStringList header = {"txtIP", "txtPort", "cmdMenu12", "cmdMenu18", "cmdMenu39", "cmdMenu11"};
  press(command::showPlayers);
  EXPECT_EQ(tabRound().mid(0, 14), header + QStringList({"ListView2", "cmdMenu42", "ListView3", "cmdMenu41",
                                                         "picRefresh", "cmdMenu30", "cmdMenu31", "cmdMenu19"}));
  press(command::showServers);
  EXPECT_EQ(tabRound().mid(0, 9), header + QStringList({"cmdMenu32", "txtPlayer", "cmdMenu23"}));
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

TEST_F(MainWindowTest, no_letter_leads_to_two_places_on_one_page) {
  for (const int page : {+command::showServers, +command::showSettings, +command::showFaves, +command::showTools,
                         +command::showPlayers, +command::showAbout}) {
    press(page);
    std::set<QString> letters;
    const auto take = [&letters, page](const QString& text) {
      const QString letter = QKeySequence::mnemonic(text).toString();
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << letter.toStdString() << " on page " << page;
    };
    for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
      take(button->isVisible() ? button->text() : QString());
    }
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
      take(label->isVisible() && label->buddy() != nullptr ? label->text() : QString());
    }
  }
}

TEST_F(MainWindowTest, no_caption_is_cut_at_the_design_size_in_a_narrow_or_a_wide_font) {
  for (const char* const family : {"Liberation Sans", "DejaVu Sans"}) {
    QFont font = QApplication::font();
    font.setFamilies({family});
    QApplication::setFont(font);
    MainWindow fresh(model, commands, progress);
    fresh.resize(designSize);
    for (const int page : {+command::showServers, +command::showPlayers}) {
      commands.cmdMenu_Click(page);
      settle();
      for (const QWidget* const part : fresh.findChildren<QWidget*>()) {
        const bool caption =
            qobject_cast<const QPushButton*>(part) != nullptr ||
            (qobject_cast<const QLabel*>(part) != nullptr && qobject_cast<const ElidedLabel*>(part) == nullptr);
        if (caption && part->isVisible()) {
          EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString() << family;
          EXPECT_GE(part->height(), part->fontMetrics().height()) << part->objectName().toStdString() << family;
          EXPECT_TRUE(fresh.rect().contains(QRect(part->mapTo(&fresh, QPoint()), part->size())));
        }
      }
    }
  }
}

TEST_F(MainWindowTest, an_address_with_a_port_that_is_pasted_fills_both_boxes) {
  QGuiApplication::clipboard()->setText(" 1.2.3.4:2302 ");
  find<QLineEdit>("txtIP")->paste();
  EXPECT_EQ(find<QLineEdit>("txtIP")->text(), "1.2.3.4");
  EXPECT_EQ(find<QLineEdit>("txtPort")->text(), "2302");
}

TEST_F(MainWindowTest, the_lists_lie_where_the_layout_has_put_them_and_the_teams_upon_the_summary) {
  press(command::showPlayers);
  EXPECT_EQ(find("ListView2")->geometry(), QRect(40, 144, 275, 317));
  EXPECT_EQ(find("picScore")->geometry(), QRect(392, 88, 281, 449));
  EXPECT_TRUE(find("ListView3")->isAncestorOf(window.childAt(500, 330)));
  const auto bottom = [this](const char* name) {
    return find(name)->mapTo(&window, QPoint(0, find(name)->height())).y();
  };
  EXPECT_LE(bottom("txtPing"), 300);
  EXPECT_GE(find("cmdMenu41")->mapTo(&window, QPoint()).y(), 360);
}

TEST_F(MainWindowTest, the_model_knows_the_outer_size_and_the_state_of_the_window) {
  int told = 0;
  const Connection listening = model.resized.connect([&told] { ++told; });
  window.resize(720, 600);
  settle();
  EXPECT_EQ(told, 1);
  EXPECT_EQ(model.Width, static_cast<float>(window.frameGeometry().width()) * 15);
  EXPECT_EQ(find("PicBG")->width(), window.frameGeometry().width() - 260) << "the panels follow";
  const float height = model.Height;
  model.windowState.set(WindowState::minimized);
  settle();
  EXPECT_TRUE(window.isMinimized());
  EXPECT_GE(told, 2);
  EXPECT_EQ(model.Height, height);
  window.setWindowState(Qt::WindowMaximized);
  settle();
  EXPECT_EQ(model.windowState.get(), WindowState::maximized);
}

TEST_F(MainWindowTest, the_close_box_takes_the_window_away_and_tells_the_program) {
  int asked = 0;
  const Connection listening = window.closed.connect([&asked] { ++asked; });
  EXPECT_TRUE(window.close());
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace vantrel

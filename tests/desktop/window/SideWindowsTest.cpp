#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <string>

#include "desktop/controls/FavesListView.h"
#include "desktop/controls/HitsTable.h"
#include "desktop/window/BuddiesWindow.h"
#include "desktop/window/PlayersWindow.h"
#include "desktop/window/WindowPlaces.h"

namespace vantrel {
namespace {

TEST(WindowPlacesTest, a_side_window_stands_beside_the_main_one_and_always_on_the_screen) {
  const QRect screen(0, 0, 1920, 1080);
  const QSize size(300, 400);
  const struct {
    QRect mainWindow;
    QPoint place;
  } cases[] = {
      {{100, 100, 700, 600}, {808, 150}},   // on its right
      {{1100, 100, 700, 600}, {792, 150}},  // on its left
      {{0, 0, 1920, 1080}, {1620, 50}},     // over its right edge
      {{100, 900, 700, 600}, {808, 680}},   // not below the screen
      {{100, -500, 700, 600}, {808, 0}},    // nor above it
      {{-2000, 100, 700, 600}, {0, 150}},   // nor where nobody sees it
  };
  for (const auto& c : cases) {
    EXPECT_EQ(placeBeside(c.mainWindow, size, screen, 50), c.place) << c.mainWindow.x() << " " << c.mainWindow.y();
  }
  EXPECT_EQ(placeBeside({10, 10, 50, 50}, {900, 700}, {0, 0, 640, 480}, 0), QPoint(0, 0)) << "its title is seen";
}

TEST(PlayersWindowTest, sorting_moves_what_is_shown_and_a_click_still_means_the_line_below_it) {
  frmPlayers model;
  PlayersWindow window(model, nullptr);
  int picked = 0;
  int shown = 0;
  const Connection picks = model.lineClicked.connect([&] { ++picked; });
  const Connection shows = model.showPressed.connect([&] { ++shown; });
  for (const char* line : {"Zed\t127.0.0.10:2302", "amy\t127.0.0.9:2302", "Bo\tTAB\t127.0.0.8:2302"}) {
    model.lstPlayers.add(line);
  }
  model.visible.set(true);
  auto& table = *window.findChild<HitsTable*>();
  const auto column = [&table](int number) {
    std::string texts;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
      texts += table.model()->index(row, number).data().toString().toStdString() + ";";
    }
    return texts;
  };
  const auto placeOf = [&table](int row) { return table.visualRect(table.model()->index(row, 0)).center(); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() == 3; }));
  EXPECT_EQ(column(1), "127.0.0.10:2302;127.0.0.9:2302;127.0.0.8:2302;") << "the order in which they were found";
  for (const char* wanted : {"amy;Bo TAB;Zed;", "Zed;Bo TAB;amy;", "Zed;amy;Bo TAB;"}) {
    Q_EMIT table.horizontalHeader()->sectionClicked(0);
    EXPECT_EQ(column(0), wanted);
  }
  Q_EMIT table.horizontalHeader()->sectionClicked(1);
  EXPECT_EQ(column(1), "127.0.0.8:2302;127.0.0.9:2302;127.0.0.10:2302;");
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, placeOf(2));
  EXPECT_EQ(model.lstPlayers.line(model.lstPlayers.selected()), "Zed\t127.0.0.10:2302");
  EXPECT_EQ(model.lstPlayers.line(0), "Zed\t127.0.0.10:2302") << "the list itself keeps its order";
  model.lstPlayers.add("Cy\t127.0.0.1:2302");
  ASSERT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() == 4; }));
  EXPECT_EQ(table.currentIndex().row(), 3) << "the selection moves with its line";
  QTest::keyClick(&table, Qt::Key_Home);
  QTest::keyClick(&table, Qt::Key_Return);
  EXPECT_EQ(model.lstPlayers.line(model.lstPlayers.selected()), "Cy\t127.0.0.1:2302");
  EXPECT_EQ(picked, 2) << "moving along the list asks no server";
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, placeOf(1));
  QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, placeOf(1));
  EXPECT_EQ(shown, 1);
  QTest::mouseDClick(table.viewport(), Qt::RightButton, {}, placeOf(1));
  EXPECT_EQ(shown, 1);
  Q_EMIT table.horizontalHeader()->sectionClicked(0);
  const std::string seen = table.model()->index(0, 0).data().toString().toStdString();
  model.lstPlayers.add("aa\t127.0.0.1:2302");
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, placeOf(0));
  EXPECT_EQ(model.lstPlayers.line(model.lstPlayers.selected()).substr(0, seen.size()), seen) << "what was seen there";
  model.lstPlayers.clear();
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() == 0; }));
}

TEST(BuddiesWindowTest, keys_press_the_buttons_and_only_the_model_closes_the_window) {
  frmBuddies model;
  model.myFaves1.add({"", "", "127.0.0.1:2302", "Amy"});
  BuddiesWindow window(model, nullptr);
  std::string told;
  const Connection presses = model.pressed.connect([&told](int button) { told += std::to_string(button); });
  const Connection closing = model.closed.connect([&told] { told += 'c'; });
  model.visible.set(true);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClicks(window.findChild<QLineEdit*>("txtBuddy"), "Bo");
  EXPECT_EQ(model.txtBuddy.text.get(), "Bo");
  QTest::keyClick(window.findChild<QLineEdit*>("txtBuddy"), Qt::Key_Return);
  window.findChild<QPushButton*>("find")->click();
  QTest::keyClick(window.findChild<FavesListView*>(), Qt::Key_Delete);
  QTest::keyClick(window.findChild<FavesListView*>(), Qt::Key_Escape);
  EXPECT_FALSE(window.close());
  EXPECT_EQ(told, "021cc");
  EXPECT_TRUE(window.isVisible());
  model.visible.set(false);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace vantrel

#include "desktop/adapters/QtPopupMenu.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QTest>

#include "desktop/adapters/QtLoop.h"

namespace vantrel {
namespace {

struct PopupMenuTest : testing::Test {
  // Has the user act once a menu is up.
  void onceUp(std::function<void(QMenu&)> act) {
    loop.startTimer(10, TimerKind::once, [this, act] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      EXPECT_NE(menu, nullptr);
      menu != nullptr ? act(*menu) : loop.beginEnding();
    });
  }
  static void clickOn(QMenu& menu, int action) {
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().at(action)).center());
  }

  QtLoop loop;
  QtPopupMenu popupMenu{loop};
  const std::vector<std::string> items{"Find & join", "-", "<b>Delete</b>"};
};

TEST_F(PopupMenuTest, a_choice_is_numbered_from_one_with_the_separators_and_a_dismissed_menu_is_zero) {
  onceUp([](QMenu& menu) {
    EXPECT_EQ(menu.actions().at(0)->text(), "Find && join");
    EXPECT_TRUE(menu.actions().at(1)->isSeparator());
    clickOn(menu, 2);
  });
  EXPECT_EQ(popupMenu.Popup(items), 3);
  onceUp([](QMenu& menu) {
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
  });
  EXPECT_EQ(popupMenu.Popup(items), 1);
  onceUp([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
  EXPECT_EQ(popupMenu.Popup(items), 0);
}

TEST_F(PopupMenuTest, a_menu_on_top_of_another_dismisses_it_and_the_end_dismisses_any) {
  int inner = -1;
  onceUp([&](QMenu&) {
    onceUp([](QMenu& menu) { clickOn(menu, 0); });
    inner = popupMenu.Popup({"Other"});
  });
  const int outer = popupMenu.Popup(items);
  EXPECT_EQ(inner, 1);
  EXPECT_EQ(outer, 0);
  onceUp([this](QMenu&) { loop.beginEnding(); });
  EXPECT_EQ(popupMenu.Popup(items), 0);
  EXPECT_EQ(popupMenu.Popup(items), 0) << "a program that ends asks nothing any more";
}

TEST_F(PopupMenuTest, a_menu_that_a_key_asks_for_stands_below_what_the_keys_stand_on) {
  QListWidget list;
  list.addItems({"One", "Two"});
  list.setCurrentRow(1);
  list.show();
  list.activateWindow();
  list.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
  QTest::keyClick(&list, Qt::Key_Menu);
  QPoint place;
  onceUp([&](QMenu& menu) {
    place = menu.pos();
    menu.close();
  });
  EXPECT_EQ(popupMenu.Popup(items), 0);
  const QRect item = list.visualItemRect(list.item(1));
  EXPECT_EQ(place, list.viewport()->mapToGlobal(QPoint(item.left(), item.bottom() + 1)));
}

}  // namespace
}  // namespace vantrel

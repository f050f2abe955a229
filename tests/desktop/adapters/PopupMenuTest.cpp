#include "desktop/adapters/QtPopupMenu.h"

#include <gtest/gtest.h>

#include <QApplication>
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

}  // namespace
}  // namespace vantrel

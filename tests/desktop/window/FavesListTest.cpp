#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <string>
#include <vector>

#include "desktop/controls/FavesListView.h"

namespace vantrel {
namespace {

constexpr int farAway = 190;  // pixels down the view: no item is there

// A list of three favorites on the screen, the first with a password.
struct FavesListTest : ::testing::Test {
  FavesListTest() {
    list.add({"CTF", "secret", "192.0.2.1:2302", "J\xFCrgen"});
    list.add({"Slayer", "", "192.0.2.2:2302", "Second"});
    list.add({"", "", "host.example:2303", "Two\nlines <b>&amp;"});
    view.resize(300, 200);
    view.show();
    view.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    view.showChanges();
    QObject::connect(&view, &FavesListView::editAsked, [this] { asked += 'e'; });
    QObject::connect(&view, &FavesListView::removeAsked, [this] {
      asked += 'r';
      list.remove(list.selected());
    });
  }

  QModelIndex item(int number) const { return view.model()->index(number - 1, 0); }
  QString shown(int number, int role = Qt::DisplayRole) const { return item(number).data(role).toString(); }
  // The number of the item that is drawn as the selected one; 0 for none.
  int highlighted() {
    view.showChanges();
    const QModelIndexList selected = view.selectionModel()->selectedIndexes();
    return selected.isEmpty() ? 0 : selected.first().row() + 1;
  }
  void click(int number, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, held, view.visualRect(item(number)).center());
  }

  FavoritesList list;
  FavesListView view{list, "faves", "Nothing yet.", nullptr};
  std::vector<int> clicks;
  std::string asked;  // for what, by a letter each
  Connection counting = list.itemClicked.connect([this](int number) { clicks.push_back(number); });
};

TEST_F(FavesListTest, an_item_shows_its_name_in_a_plain_line_its_address_and_game_type_but_never_its_password) {
  EXPECT_EQ(shown(1), QStringLiteral("J\u00FCrgen"));
  EXPECT_EQ(shown(1, FavesListModel::hostnameRole), "192.0.2.1:2302");
  EXPECT_EQ(shown(1, FavesListModel::gametypeRole), "CTF");
  EXPECT_TRUE(item(1).data(FavesListModel::lockedRole).toBool());
  EXPECT_FALSE(item(2).data(FavesListModel::lockedRole).toBool());
  for (int role = 0; role < Qt::UserRole + 20; ++role) {
    EXPECT_FALSE(shown(1, role).contains("secret")) << role;
  }
  EXPECT_EQ(shown(3), "Two lines <b>&amp;");
  EXPECT_TRUE(shown(3, Qt::ToolTipRole).contains("&lt;b&gt;&amp;amp;"));
  list.setName(3, std::string(1'000'000, 'x'));
  view.showChanges();
  EXPECT_LE(shown(3).size(), 1000);
}

TEST_F(FavesListTest, a_click_selects_what_is_there_now_and_tells_of_it_and_a_selection_by_others_tells_nothing) {
  click(2);
  EXPECT_EQ(list.selected(), 2);
  list.select(3);
  EXPECT_EQ(highlighted(), 3);
  list.select(0);
  EXPECT_EQ(highlighted(), 0);
  list.select(3);
  list.remove(1);
  click(1);
  EXPECT_EQ(clicks, (std::vector<int>{2, 1}));
  EXPECT_EQ(shown(1), "Second");
  EXPECT_EQ(view.model()->rowCount(), 2);
}

TEST_F(FavesListTest, keys_select_only_enter_or_the_space_bar_clicks_and_no_other_click_takes_the_selection_away) {
  view.clearFocus();
  view.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(list.selected(), 0);
  EXPECT_EQ(highlighted(), 0);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Return, Qt::Key_Space}) {
    QTest::keyClick(&view, key);
  }
  EXPECT_EQ(clicks, (std::vector<int>{2, 2}));
  click(2, Qt::ControlModifier);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(10, farAway));
  EXPECT_EQ(highlighted(), 2);
  EXPECT_EQ(list.selected(), 2);
}

TEST_F(FavesListTest, a_double_click_is_one_click_and_one_wish_to_edit_and_keys_ask_once_however_long_they_are_held) {
  const QPoint second = view.visualRect(item(2)).center();
  click(2);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
  QTest::mouseDClick(view.viewport(), Qt::RightButton, {}, second);
  EXPECT_EQ(clicks, std::vector<int>{2});
  EXPECT_EQ(asked, "e");
  QTest::keyClick(&view, Qt::Key_F2);
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "192.0.2.2:2302");
  QTest::keyPress(&view, Qt::Key_Delete);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, true);
  QApplication::sendEvent(&view, &held);
  EXPECT_EQ(asked, "eer");
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "192.0.2.2:2302");
}

}  // namespace
}  // namespace vantrel

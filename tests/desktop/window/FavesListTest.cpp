#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <algorithm>
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
  Connection counting = list.itemClicked.connect([this](int number) { clicks.push_back(number); });
};

TEST_F(FavesListTest, an_item_shows_its_name_address_and_game_type_and_that_it_has_a_password_but_never_which) {
  EXPECT_EQ(shown(1), QStringLiteral("J\u00FCrgen"));
  EXPECT_EQ(shown(1, FavesListModel::hostnameRole), "192.0.2.1:2302");
  EXPECT_EQ(shown(1, FavesListModel::gametypeRole), "CTF");
  EXPECT_TRUE(item(1).data(FavesListModel::lockedRole).toBool());
  EXPECT_FALSE(item(2).data(FavesListModel::lockedRole).toBool());
  EXPECT_EQ(shown(1, Qt::AccessibleTextRole), QStringLiteral("J\u00FCrgen, 192.0.2.1:2302, CTF, password is stored"));
  for (int role = 0; role < Qt::UserRole + 20; ++role) {
    EXPECT_FALSE(shown(1, role).contains("secret")) << role;
  }
}

TEST_F(FavesListTest, a_hostile_name_is_one_line_without_markup) {
  EXPECT_EQ(shown(3), "Two lines <b>&amp;");
  EXPECT_TRUE(shown(3, Qt::ToolTipRole).contains("&lt;b&gt;&amp;amp;"));
  list.setName(3, std::string(1'000'000, 'x'));
  view.showChanges();
  EXPECT_LE(shown(3).size(), 1000);
}

TEST_F(FavesListTest,
       a_click_selects_the_item_and_tells_of_itself_and_a_selection_by_others_is_shown_and_tells_nothing) {
  click(2);
  EXPECT_EQ(list.selected(), 2);
  EXPECT_EQ(clicks, std::vector<int>{2});
  list.select(3);
  EXPECT_EQ(highlighted(), 3);
  list.select(0);
  EXPECT_EQ(highlighted(), 0);
  EXPECT_EQ(clicks.size(), 1U);
}

TEST_F(FavesListTest, keys_select_and_only_enter_or_the_space_bar_clicks) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up}) {
    QTest::keyClick(&view, key);
  }
  EXPECT_EQ(list.selected(), 2);
  EXPECT_TRUE(clicks.empty());
  QTest::keyClick(&view, Qt::Key_Return);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(clicks, (std::vector<int>{2, 2}));
}

TEST_F(FavesListTest, the_selection_stays_with_any_other_click_and_the_focus_alone_makes_none) {
  view.clearFocus();
  view.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(list.selected(), 0);
  EXPECT_EQ(highlighted(), 0);
  click(2);
  click(2, Qt::ControlModifier);
  EXPECT_EQ(highlighted(), 2);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(10, farAway));
  EXPECT_TRUE(view.selectionModel()->isSelected(item(2)));
  EXPECT_EQ(list.selected(), 2);
}

TEST_F(FavesListTest, what_is_clicked_after_a_removal_is_the_item_that_is_there_now) {
  list.select(3);
  list.remove(1);
  click(1);
  EXPECT_EQ(clicks, std::vector<int>{1});
  EXPECT_EQ(shown(1), "Second");
  EXPECT_EQ(view.model()->rowCount(), 2);
}

TEST_F(FavesListTest, being_shown_leaves_the_current_item_and_the_selection_as_they_are) {
  list.makeCurrent(2);
  list.select(3);
  list.setGametype(1, "King");
  view.showChanges();
  EXPECT_EQ(shown(1, FavesListModel::gametypeRole), "King");
  EXPECT_EQ(list.current().name, "Second");
  EXPECT_EQ(list.selected(), 3);
}

TEST_F(FavesListTest, two_thousand_items_come_up_in_one_go) {
  int insertions = 0;
  QObject::connect(view.model(), &QAbstractItemModel::rowsInserted, &view, [&insertions] { ++insertions; });
  for (int i = 0; i < 2000; ++i) {
    list.add({"Race", "", "192.0.2.9:2302", "Server " + std::to_string(i)});
  }
  ASSERT_TRUE(QTest::qWaitFor([this] { return view.model()->rowCount() == 2003; }));
  EXPECT_EQ(insertions, 1);
  EXPECT_EQ(shown(2003), "Server 1999");
}

TEST_F(FavesListTest, an_empty_list_says_so) {
  EXPECT_EQ(view.accessibleDescription(), "");
  list.clear();
  view.showChanges();
  EXPECT_EQ(view.accessibleDescription(), "Nothing yet.");
}

}  // namespace
}  // namespace vantrel

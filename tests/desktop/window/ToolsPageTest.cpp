#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>

#include "desktop/adapters/QtLoop.h"
#include "desktop/pages/ToolsList.h"

namespace vantrel {
namespace {

// A list of three tools on the screen; `told` notes the selection at each click, and each wish to start.
struct ToolsListTest : ::testing::Test {
  ToolsListTest() {
    for (const char* const name : {"alpha.exe", "<b>beta</b>\n.exe", "gamma.exe"}) {
      list.files.add(name);
    }
    QObject::connect(&view, &ToolsList::startAsked, [this] { told += '!'; });
    view.resize(300, 200);
    view.show();
    view.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
  }

  QPoint middle(int row) const { return view.visualRect(view.model()->index(row, 0)).center(); }
  void click(int row) { QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(row)); }

  FileListBox list;
  ToolsList view{list, nullptr};
  std::string told;
  Connection noting = list.clicked.connect([this] { told += std::to_string(list.files.selected()); });
};

TEST_F(ToolsListTest, a_click_or_a_key_selects_and_tells_once_and_a_selection_by_others_tells_nothing) {
  EXPECT_EQ(list.files.selected(), -1) << "the focus selects nothing";
  click(1);
  click(1);
  list.files.select(0);
  EXPECT_EQ(view.currentIndex().row(), 0);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_G, Qt::Key_Home, Qt::Key_End}) {
    QTest::keyClick(&view, key);
  }
  EXPECT_EQ(told, "111202");
  list.files.clear();
  list.files.add("delta.exe");
  EXPECT_FALSE(view.currentIndex().isValid());
  click(0);
  EXPECT_EQ(told, "1112020");
}

TEST_F(ToolsListTest, enter_and_a_double_click_start_what_is_selected_once_however_long_the_key_is_held) {
  QTest::keyClick(&view, Qt::Key_Return);
  click(2);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, middle(2));
  QTest::keyPress(&view, Qt::Key_Return);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
  QApplication::sendEvent(&view, &held);
  EXPECT_EQ(told, "2!!");
}

TEST_F(ToolsListTest, a_name_is_one_line_and_never_markup) {
  const QModelIndex row = view.model()->index(1, 0);
  EXPECT_EQ(row.data().toString(), "<b>beta</b> .exe");
  EXPECT_TRUE(row.data(Qt::ToolTipRole).toString().contains("&lt;b&gt;beta"));
}

}  // namespace
}  // namespace vantrel

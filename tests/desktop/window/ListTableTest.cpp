#include "desktop/controls/ListTable.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "desktop/controls/IndicatorPicture.h"

namespace vantrel {
namespace {

struct ListTableTest : ::testing::Test {
  ListTableTest() { table.show(); }

  void add(const std::string& name, const std::string& value) {
    list.addRow(name);
    list.setCell(list.rowCount(), 2, value);
  }
  QString shown(int row, int column) { return table.model()->index(row, column).data().toString(); }
  int shownRows() { return table.model()->rowCount(); }

  ListView list{{{"Name", 100}, {"Value", 0}}, {0, 0, 3000, 3000}};
  ListTable table{list, "list", "List", nullptr};
};

TEST_F(ListTableTest, what_strangers_write_is_one_plain_line_and_no_markup) {
  add("two\r\nlines", "<b>bold</b>");
  table.shownRows().showChanges();
  EXPECT_EQ(shown(0, 0), "two  lines");
  EXPECT_EQ(shown(0, 1), "<b>bold</b>");
  const QString toolTip = table.model()->index(0, 1).data(Qt::ToolTipRole).toString();
  EXPECT_TRUE(toolTip.contains("&lt;b&gt;bold"));
}

TEST_F(ListTableTest, selected_rows_are_copied_in_their_order_with_tabs_and_one_that_comes_again_stays_selected) {
  for (const char* const name : {"a", "b", "c"}) {
    add(name, "1");
  }
  table.shownRows().showChanges();
  for (const int row : {2, 0}) {
    table.selectionModel()->select(table.model()->index(row, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "a\t1\nc\t1");
  list.clear();
  EXPECT_EQ(shownRows(), 3) << "it is not seen empty in between";
  add("a", "4");
  add("other", "5");
  table.shownRows().showChanges();
  EXPECT_EQ(shownRows(), 2);
  EXPECT_EQ(table.selectedText(), "a\t4");
}

TEST(IndicatorPicture, tells_of_a_press_by_the_mouse_and_by_a_key) {
  Picture model;
  IndicatorPicture lamp(model, "lamp", "Lamp", nullptr);
  lamp.resize(lamp.sizeHint());
  int pressed = 0;
  const Connection listening = model.clicked.connect([&pressed] { ++pressed; });
  QTest::mouseClick(&lamp, Qt::LeftButton);
  QTest::keyClick(&lamp, Qt::Key_Space);
  EXPECT_EQ(pressed, 2);
}

}  // namespace
}  // namespace vantrel

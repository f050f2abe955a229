#include "desktop/controls/ListTable.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
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

TEST_F(ListTableTest, ten_thousand_rows_come_at_once_and_appear_together) {
  QElapsedTimer clock;
  clock.start();
  for (int i = 0; i < 10'000; ++i) {
    add("name", "value");
  }
  EXPECT_EQ(shownRows(), 0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return shownRows() == 10'000; }, 3000));
  EXPECT_EQ(shown(9'999, 1), "value");
  EXPECT_LT(clock.elapsed(), 2000);
}

TEST_F(ListTableTest, the_selected_rows_are_copied_from_top_to_bottom_with_tabs_between_the_cells) {
  add("a", "1");
  add("b", "2");
  add("c", "3");
  table.shownRows().showChanges();
  for (const int row : {2, 0}) {
    table.selectionModel()->select(table.model()->index(row, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "a\t1\nc\t3");
}

TEST_F(ListTableTest, a_list_that_is_filled_anew_keeps_the_selection_of_a_row_that_is_still_about_the_same) {
  add("a", "1");
  add("b", "2");
  add("c", "3");
  table.shownRows().showChanges();
  table.selectAll();
  list.clear();
  EXPECT_EQ(shownRows(), 3) << "it is not seen empty in between";
  add("a", "4");
  add("other", "5");
  table.shownRows().showChanges();
  EXPECT_EQ(shownRows(), 2);
  EXPECT_EQ(table.selectedText(), "a\t4");
}

TEST(IndicatorPicture, on_and_off_differ_without_their_colours_and_a_press_is_told) {
  Picture model;
  IndicatorPicture lamp(model, "lamp", "Lamp", nullptr);
  lamp.resize(lamp.sizeHint());
  model.image.set("off");
  const QImage off = lamp.grab().toImage().convertToFormat(QImage::Format_Mono);
  model.image.set("on");
  EXPECT_NE(lamp.grab().toImage().convertToFormat(QImage::Format_Mono), off);
  EXPECT_EQ(lamp.accessibleDescription(), "on");
  int pressed = 0;
  const Connection listening = model.clicked.connect([&pressed] { ++pressed; });
  QTest::mouseClick(&lamp, Qt::LeftButton);
  QTest::keyClick(&lamp, Qt::Key_Space);
  EXPECT_EQ(pressed, 2);
}

}  // namespace
}  // namespace vantrel

#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>

#include "GridWorld.h"
#include "desktop/ServerGridDelegate.h"
#include "desktop/ServerGridIcons.h"

namespace vantrel {

namespace {

class ServerGridLookTest : public GridWorld {
 protected:
  QImage picture() { return view.table().viewport()->grab().toImage(); }

  // Places are in device-independent pixels.
  static QColor colorAt(const QImage& image, QPointF place) {
    return image.pixelColor((place * image.devicePixelRatio()).toPoint());
  }

  // Left of the text and away from the picture behind the rows.
  QColor rowColor(int position) { return colorAt(picture(), QPoint(1, rowPoint(position).y())); }

  static int count(const QImage& image, const QRectF& area, const QColor& wanted) {
    int found = 0;
    for (qreal y = area.top(); y < area.bottom(); ++y) {
      for (qreal x = area.left(); x < area.right(); ++x) {
        found += colorAt(image, {x, y}) == wanted ? 1 : 0;
      }
    }
    return found;
  }

  bool isCut(int position, int column) {
    QStyleOptionViewItem option;
    const QModelIndex index = view.model().index(position, column - 1);
    option.rect = view.table().visualRect(index);
    option.fontMetrics = QFontMetrics(view.table().font());
    return static_cast<ServerGridDelegate*>(view.table().itemDelegate())->isCut(option, index);
  }
};

}  // namespace

TEST_F(ServerGridLookTest, rows_have_the_colours_of_the_look_and_keep_their_stripe_when_one_arrives_above) {
  addMany(100);
  clickHeader(ping);
  EXPECT_EQ(rowColor(0), QColor(64, 64, 64));
  EXPECT_EQ(rowColor(1), QColor(0, 0, 64));
  EXPECT_EQ(view.table().rowHeight(0), 19);
  view.table().verticalScrollBar()->setValue(30 * 19);
  const QImage before = picture();
  add("fast", "1 ms");
  settle();
  EXPECT_EQ(picture(), before);
}

TEST_F(ServerGridLookTest, another_look_is_taken_over_by_the_rows_that_are_shown) {
  addMany(10);
  GridLook look = grid.look();
  look.background = 0x102030;
  look.rowHeight = 24;
  grid.setLook(look);
  settle();
  EXPECT_EQ(colorAt(picture(), QPoint(1, 24 * 2 + 5)), QColor(0x30, 0x20, 0x10));
}

TEST_F(ServerGridLookTest, the_selected_row_shines_through_and_its_red_cell_stays_red) {
  addMany(3);
  grid.setCell(2, ping, "222");
  grid.setCellColor(2, ping, colors::red);
  settle();
  view.table().clearFocus();
  press(1);
  const QColor selected = rowColor(1);
  EXPECT_GT(selected.lightness(), 150);
  const QImage image = picture();
  const QRect cell = view.table().visualRect(view.model().index(1, ping - 1));
  EXPECT_GT(count(image, cell, QColor(255, 0, 0)), 3);
  const QRect nameCell = view.table().visualRect(view.model().index(1, 0));
  EXPECT_GT(count(image, nameCell, QColor(0, 0, 128)), 3);
  EXPECT_EQ(count(image, nameCell, QColor(255, 255, 255)), 0);
  press(0);
  EXPECT_NE(rowColor(0), selected) << "the stripe shines through";
}

TEST_F(ServerGridLookTest, the_selection_looks_different_with_and_without_the_focus) {
  addMany(3);
  press(0);
  view.activateWindow();
  view.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([this] { return view.table().hasFocus() && view.isActiveWindow(); }, 5000));
  const QColor focused = rowColor(0);
  view.table().clearFocus();
  EXPECT_NE(rowColor(0), focused);
}

TEST_F(ServerGridLookTest, only_a_cell_that_is_cut_has_a_tool_tip_and_control_characters_are_not_drawn) {
  add("short", "9 ms");
  add(std::string(10000, 'W'), std::string(10000, '7'),
      "\x01\x02"
      "caf\xE9\x9D");
  settle();
  clickHeader(ping);
  EXPECT_FALSE(isCut(0, name));
  EXPECT_TRUE(isCut(1, name));
  EXPECT_TRUE(isCut(1, ping));
  EXPECT_FALSE(isCut(1, map));
  EXPECT_EQ(view.model().index(1, map - 1).data().toString(), QStringLiteral(u"caf\u00E9"));
  view.table().resizeColumnToContents(name - 1);
  EXPECT_LE(view.table().columnWidth(name - 1), 500) << "ten thousand letters do not make an endless column";
  view.grab();
}

TEST_F(ServerGridLookTest, columns_told_by_an_image_have_words_for_people) {
  EXPECT_EQ(view.model().columnName(ping).toStdString(), "Ping");
  EXPECT_EQ(view.model().columnName(players).toStdString(), "Players");
  EXPECT_EQ(view.model().columnName(name).toStdString(), "Server Name");
  const auto header = [this](int column, int role) {
    return view.model().headerData(column - 1, Qt::Horizontal, role);
  };
  EXPECT_EQ(header(ping, Qt::AccessibleTextRole).toString().toStdString(), "Ping");
  EXPECT_EQ(header(ping, Qt::DisplayRole).toString().toStdString(), "");
  EXPECT_FALSE(header(ping, Qt::DecorationRole).isNull());
  EXPECT_EQ(view.table().accessibleName().toStdString(), "Server list");
  EXPECT_EQ(view.objectName().toStdString(), "grdServers");
}

TEST_F(ServerGridLookTest, the_columns_have_their_widths_and_the_last_one_fills_the_grid) {
  EXPECT_EQ(view.table().columnWidth(0), 165);
  EXPECT_EQ(view.table().columnWidth(1), 50);
  EXPECT_EQ(view.header().length(), view.table().viewport()->width());
  grid.addColumn({"cGameType", "Game Type", Alignment::left, 0, 85, 0});
  settle();
  EXPECT_EQ(view.table().columnWidth(3), 45);
  EXPECT_EQ(view.header().length(), view.table().viewport()->width());
}

TEST_F(ServerGridLookTest, every_image_of_the_list_is_drawn_and_no_other_number_is_one) {
  for (int number = 0; number <= 5; ++number) {
    const bool exists = number >= 1 && number <= 4;
    EXPECT_EQ(gridIcon(number).isNull(), !exists) << number;
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintGridImage(painter, number, QRectF(0, 0, 32, 32));
    EXPECT_EQ(count(image, image.rect(), QColor(0, 0, 0, 0)) < 1000, exists) << number;
  }
}

}  // namespace vantrel

// A server list on the screen, with columns as the program has them, and a user's hands.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <string>
#include <vector>

#include "desktop/ServerGridView.h"

namespace vantrel {

class GridWorld : public testing::Test {
 protected:
  static constexpr int name = 1;
  static constexpr int ping = 2;
  static constexpr int map = 3;
  static constexpr int players = 4;

  GridWorld() {
    GridLook look;
    look.groupingHint = "Drag columns here for advanced filtering:";
    grid.setLook(look);
    grid.addColumn({"cName", "Server Name ", Alignment::left, 0, 165, 102});
    grid.addColumn({"cPing", "", Alignment::left, 4, 50, 102});
    grid.addColumn({"cMap", "Map", Alignment::left, 0, 100, 0});
    grid.addColumn({"cPlayers", "", Alignment::left, 3, 45, 102});
    view.resize(600, 300);
    view.show();
    settle();
  }

  int add(const std::string& text, const std::string& pingText, const std::string& mapText = "hall") {
    const int row = grid.rowCount() + 1;
    grid.setCell(row, name, text);
    grid.setCell(row, ping, pingText);
    grid.setCell(row, map, mapText);
    return row;
  }

  void addMany(int count) {
    for (int i = 0; i < count; ++i) {
      add("server " + std::to_string(i), std::to_string(100 + i) + " ms", i % 2 == 0 ? "hall" : "cave");
    }
    settle();
  }

  // Until all changes are on the screen.
  void settle() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !view.model().somethingWaits(); }, 5000));
    QCoreApplication::processEvents();
  }

  int rowsShown() { return view.model().rowCount(); }
  ServerGridOrder::Entry entry(int position) { return view.model().entryAt(position); }
  std::vector<int> entries() {
    std::vector<int> all;
    for (int position = 0; position < rowsShown(); ++position) {
      all.push_back(entry(position));
    }
    return all;
  }
  QString shownText(int position) { return view.model().index(position, 0).data().toString(); }

  // The model's row number that is drawn as selected; 0 when none is.
  int selectedRow() {
    const QModelIndexList rows = view.table().selectionModel()->selectedRows();
    return rows.isEmpty() ? 0 : entry(rows.first().row());
  }

  QPoint rowPoint(int position, int x = 100) { return {x, view.table().rowViewportPosition(position) + 9}; }
  void press(int position, Qt::MouseButton button = Qt::LeftButton, int x = 100) {
    QTest::mouseClick(view.table().viewport(), button, {}, rowPoint(position, x));
  }
  void key(Qt::Key pressed) { QTest::keyClick(&view.table(), pressed); }

  QPoint headerPoint(int column) {
    ServerGridHeader& header = view.header();
    return {header.sectionViewportPosition(column - 1) + header.sectionSize(column - 1) / 2, header.height() / 2};
  }
  void clickHeader(int column) { QTest::mouseClick(view.header().viewport(), Qt::LeftButton, {}, headerPoint(column)); }

  // A drag as the window system would send it: both points in the coordinates of the widget that was pressed.
  static void drag(QWidget& widget, QPoint from, QPoint to) {
    const auto send = [&widget](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
      QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
      QCoreApplication::sendEvent(&widget, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 10; ++step) {
      send(QEvent::MouseMove, from + (to - from) * step / 10, Qt::NoButton, Qt::LeftButton);
    }
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  }
  void dragHeaderToBar(int column) {
    QWidget& header = *view.header().viewport();
    drag(header, headerPoint(column), header.mapFromGlobal(view.groupingBar().mapToGlobal(QPoint(20, 10))));
  }

  ServerGrid grid;
  ServerGridView view{grid};
};

}  // namespace vantrel

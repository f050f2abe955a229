// A server list on the screen, with columns as the program has them, and a user's hands.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

#include "desktop/grid/ServerGridView.h"

namespace vantrel {

struct GridWorld : testing::Test {
  enum Column { name = 1, ping, ip, port, map };

  GridWorld() {
    grid.addColumn({"cName", "Server Name ", Alignment::left, 0, 165, 102});
    grid.addColumn({"cPing", "", Alignment::left, 4, 50, 102});
    grid.addColumn({"cIP", "IP", Alignment::left, 0, 70, 102});
    grid.addColumn({"cPort", "Port", Alignment::left, 0, 50, 0});
    grid.addColumn({"cMap", "Map", Alignment::left, 0, 100, 0});
    view.resize(600, 300);
    view.show();
    settle();
  }

  void add(const std::string& text, const std::string& pingText, const std::string& mapText = "hall") {
    const int row = grid.rowCount() + 1;
    grid.setCell(row, name, text);
    grid.setCell(row, ping, pingText);
    grid.setCell(row, map, mapText);
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
  std::string shownText(int position) { return view.model().index(position, 0).data().toString().toStdString(); }
  // The model's row number that is drawn as selected; 0 when none is.
  int selectedRow() {
    const QModelIndexList rows = view.table().selectionModel()->selectedRows();
    return rows.isEmpty() ? 0 : entry(rows.first().row());
  }
  QImage picture() { return view.table().viewport()->grab().toImage(); }
  // What the grid told the program since the last call.
  std::string heard() { return std::exchange(told, {}); }

  QPoint rowPoint(int position, int x = 100) {
    return {x, position * grid.look().rowHeight + 9 - view.table().verticalScrollBar()->value()};
  }
  void press(int position, Qt::MouseButton button = Qt::LeftButton, int x = 100) {
    QTest::mouseClick(view.table().viewport(), button, {}, rowPoint(position, x));
  }
  void key(Qt::Key pressed) { QTest::keyClick(&view.table(), pressed); }

  QPoint headerPoint(int column) {
    return {view.header().sectionViewportPosition(column - 1) + view.header().sectionSize(column - 1) / 2, 10};
  }
  void clickHeader(int column) { QTest::mouseClick(view.header().viewport(), Qt::LeftButton, {}, headerPoint(column)); }
  // Both points in the coordinates of the widget that is pressed.
  static void drag(QWidget& widget, QPoint from, QPoint to) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 10; ++step) {
      QTest::mouseMove(&widget, from + (to - from) * step / 10);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
  }
  void dragHeader(int column, QWidget& target, QPoint place) {
    QWidget& header = *view.header().viewport();
    drag(header, headerPoint(column), header.mapFromGlobal(target.mapToGlobal(place)));
  }

  ServerGrid grid;
  ServerGridView view{grid};
  std::string told;
  Connection selecting = grid.rowSelected.connect(
      [this](int row, int column) { told += "select " + std::to_string(row) + "," + std::to_string(column) + " "; });
  Connection pressing = grid.mouseButton.connect(
      [this](MouseButton button) { told += button == MouseButton::right ? "right " : "left "; });
};

}  // namespace vantrel

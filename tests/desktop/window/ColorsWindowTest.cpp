// The colours on the screen: what is written on the main window can be read there, and the window in which the colours
// are chosen tells and shows what its model holds.

#include "desktop/window/ColorsWindow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "appearance/WindowLayout.h"
#include "appearance/modColors.h"
#include "browser/Pages.h"
#include "core/modSGrid.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/ColorChart.h"
#include "desktop/controls/FavesInks.h"
#include "desktop/controls/Inks.h"
#include "desktop/controls/Theme.h"
#include "desktop/window/MainWindow.h"
#include "support/FakeRegistry.h"

namespace vantrel {
namespace {

constexpr double enough = 4.5;

struct Silence : Notices {
  void ShowPopMsg(const std::string& /*text*/) override {}
  void popUpBalloon(const std::string& /*text*/, const std::string& /*title*/) override {}
};

// The theme's font goes with the test.
struct Themed {
  Themed() { applyTheme(*qApp); }
  ~Themed() { QApplication::setFont(before); }

  QFont before = QApplication::font();
};

struct PaintedWindowTest : ::testing::Test {
  PaintedWindowTest() {
    layout.layoutPanels();
    colors.loadColors();
    SetupGrid(model.grdServers);
    window.resize(671, 553);
    model.visible.set(true);
  }

  void show(int page) {
    commands.cmdMenu_Click(page);
    QCoreApplication::processEvents();
  }
  // Of every text of the page on show, against what is really behind its upper left corner.
  std::string unreadable() {
    const QImage shown = window.grab().toImage();
    std::string all;
    for (const QWidget* const part : window.findChildren<QWidget*>()) {
      const auto* const label = qobject_cast<const QLabel*>(part);
      const auto* const box = qobject_cast<const QCheckBox*>(part);
      const QString text = label != nullptr ? label->text() : box != nullptr ? box->text() : QString();
      if (text.isEmpty() || part->visibleRegion().isEmpty()) {
        continue;
      }
      const QPoint corner = part->mapTo(&window, QPoint(part->width() - 1, 0));
      const QColor ground = shown.pixelColor(corner * shown.devicePixelRatio());
      const QColor ink = part->palette().color(part->foregroundRole());
      const double found = contrast(luminance(ink), luminance(ground));
      if (found < enough) {
        all += part->objectName().toStdString() + " \"" + text.toStdString() + "\": " + ink.name().toStdString() +
               " on " + ground.name().toStdString() + "\n";
      }
    }
    return all;
  }

  QtLoop loop;
  Silence notices;
  frmMain model{loop};
  Commands commands{model, notices};
  Pages pages{model, commands, notices};
  WindowLayout layout{model};
  FakeRegistry registry;
  modReg reg{registry};
  modColors colors{model, reg};
  SweepProgress progress;
  frmMsg question{loop};
  Themed themed;
  MainWindow window{model, commands, progress, question};
};

TEST_F(PaintedWindowTest, every_text_can_be_read_in_the_default_colours) {
  model.lblExeStatus.caption.set("Please locate Halo CE");
  model.ListView3.addRow("Red");
  for (const auto& [score, map] : {std::pair(colors::systemFace, colors::systemFace),
                                   std::pair(colors::red, colors::red), std::pair(Color{0xFF0000}, colors::black)}) {
    model.lblText[4].backColor.set(score);
    model.lblText2[11].backColor.set(map);
    for (const int page :
         {+command::showServers, +command::showCurrentGame, +command::showPlayers, +command::showVehicles,
          +command::showFaves, +command::showTools, +command::showSettings, +command::showAbout}) {
      show(page);
      EXPECT_EQ(unreadable(), "") << "page " << page;
    }
  }
}

TEST_F(PaintedWindowTest, a_change_is_seen_at_once_on_the_window_its_boxes_and_its_lists) {
  show(command::showSettings);
  colors.paintBackColor("255");
  colors.paintLabelColor("65280");
  const QImage shown = window.grab().toImage();
  const auto at = [&](const char* name, QPoint inside) {
    return shown.pixelColor(window.findChild<QWidget*>(name)->mapTo(&window, inside) * shown.devicePixelRatio());
  };
  EXPECT_EQ(at("picSettings", {3, 3}), QColor(Qt::red));
  EXPECT_EQ(at("shpInfo6", {5, 5}), QColor(Qt::green));
  EXPECT_EQ(window.findChild<QWidget*>("ListView1")->palette().color(QPalette::Base), QColor(Qt::green));
  EXPECT_EQ(window.findChild<QWidget*>("myFaves1")->palette().color(QPalette::Base), QColor(Qt::red));
  EXPECT_EQ(window.palette().color(QPalette::Window), QColor(Qt::red));
}

TEST(Inks, a_colour_stays_as_it_is_where_it_can_be_read_and_comes_as_near_as_can_be_elsewhere) {
  const QColor grounds[] = {Qt::black, Qt::white, Qt::red, Qt::blue, QColor(0, 0, 64), QColor(128, 128, 128)};
  for (const QColor& ground : grounds) {
    for (const QColor& wanted : grounds) {
      const QColor found = readable(wanted, ground);
      EXPECT_GE(contrast(luminance(found), luminance(ground)), enough) << ground.name().toStdString();
      const bool kept = contrast(luminance(wanted), luminance(ground)) >= enough;
      EXPECT_EQ(found == wanted, kept) << wanted.name().toStdString() << " on " << ground.name().toStdString();
    }
  }
}

struct ColorsWindowTest : ::testing::Test {
  ColorsWindowTest() {
    model.visible.set(true);
    QCoreApplication::processEvents();
  }

  template <class T = QWidget>
  T* find(const char* name) {
    return window.findChild<T*>(name);
  }

  Themed themed;
  frmColors model;
  ColorsWindow window{model, nullptr};
};

TEST_F(ColorsWindowTest, what_the_user_does_is_told_and_what_the_model_holds_is_shown) {
  std::string log;
  const Connection roles =
      model.roleClicked.connect([&] { log += "role " + std::to_string(model.lstColor.selected()) + ";"; });
  const Connection swatches =
      model.miniPickerPressed.connect([&](int number) { log += "swatch " + std::to_string(number) + ";"; });
  const Connection downs = model.viewAsPressed.connect([&](int number) { log += "down " + std::to_string(number); });
  const Connection ups = model.viewAsReleased.connect([&](int number) { log += " up " + std::to_string(number); });
  const Connection views = model.viewAsClicked.connect([&](int number) { log += " view " + std::to_string(number); });
  find<QListWidget>("lstColor")->setCurrentRow(3);
  QTest::mousePress(find("MiniPicker1"), Qt::LeftButton);
  QTest::mouseClick(find("ViewAs2"), Qt::LeftButton);
  EXPECT_EQ(log, "role 3;swatch 1;down 2 up 2 view 2");
  model.R.text.set("12");
  model.LongValue.visible.set(false);
  model.lstColor.select(-1);
  EXPECT_EQ(find<QLineEdit>("R")->text(), "12");
  EXPECT_FALSE(find("LongValue")->isVisible());
  EXPECT_EQ(find<QListWidget>("lstColor")->currentRow(), -1);
}

TEST_F(ColorsWindowTest, its_buttons_and_menus_are_commands_and_the_close_box_is_told) {
  std::vector<ColorCommand> told;
  int closes = 0;
  const Connection presses = model.pressed.connect([&](ColorCommand command) { told.push_back(command); });
  const Connection close = model.closed.connect([&] { ++closes; });
  for (const char* const button : {"cmdColorize", "Command2", "Command3"}) {
    QTest::mouseClick(find(button), Qt::LeftButton);
  }
  for (const char* const entry : {"mnuRGB", "mnuHex", "mnuLong", "mnuExit"}) {
    find<QAction>(entry)->trigger();
  }
  EXPECT_EQ(told,
            (std::vector{ColorCommand::colorize, ColorCommand::darkText, ColorCommand::lightText, ColorCommand::copyRgb,
                         ColorCommand::copyHex, ColorCommand::copyLong, ColorCommand::exit}));
  window.close();
  EXPECT_EQ(closes, 1);
  EXPECT_TRUE(window.isVisible()) << "the model alone hides it";
}

TEST_F(ColorsWindowTest, a_press_and_a_drag_on_the_chart_pick_the_colour_that_is_drawn_there) {
  auto& chart = *find<ColorChart>("Picker");
  std::vector<Color> picked;
  const Connection picks = model.pickerPressed.connect([&](Color color) { picked.push_back(color); });
  const QPoint middle(chart.width() / 2, 40);
  const QPoint outside(chart.width() + 50, chart.height() + 50);
  const QImage shown = chart.grab().toImage();
  QTest::mousePress(&chart, Qt::LeftButton, {}, middle);
  QTest::mouseMove(&chart, outside);
  QTest::keyClick(&chart, Qt::Key_Left);
  ASSERT_EQ(picked.size(), 3u);
  EXPECT_EQ(screenColor(picked[0]), shown.pixelColor(middle * shown.devicePixelRatio()));
  EXPECT_EQ(picked[1], colors::black) << "the last of the greys";
  EXPECT_NE(picked[2], picked[1]);
  EXPECT_EQ(chart.colorAt({0, chart.height() - 1}), colors::white);
}

TEST_F(ColorsWindowTest, all_that_takes_keys_has_a_name_and_the_arrow_keys_lead_through_the_swatches) {
  for (const QWidget* const part : window.findChildren<QWidget*>()) {
    const bool takesKeys = part->isVisible() && (part->focusPolicy() & Qt::TabFocus) != 0 && !part->focusProxy();
    EXPECT_FALSE(takesKeys && part->accessibleName().isEmpty()) << part->objectName().toStdString();
  }
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  find("MiniPicker5")->setFocus();
  std::string way;
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
    QTest::keyClick(QApplication::focusWidget(), key);
    way += QApplication::focusWidget()->objectName().toStdString() + " ";
  }
  EXPECT_EQ(way, "MiniPicker5 MiniPicker4 MiniPicker6 MiniPicker11 MiniPicker6 ");
}

}  // namespace
}  // namespace vantrel

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>

#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/FavesListView.h"
#include "desktop/pages/FaveEditor.h"
#include "desktop/pages/FavesPage.h"

namespace vantrel {
namespace {

struct NoNotices : Notices {
  void ShowPopMsg(const std::string& /*text*/) override {}
  void popUpBalloon(const std::string& /*text*/, const std::string& /*title*/) override {}
};

// The page and the editor side by side.
struct FavesPageTest : ::testing::Test {
  FavesPageTest() {
    for (Panel* const panel : {&model.picFaves, &model.picFaves2}) {
      panel->visible.set(true);
      panel->place.set({panel == &model.picFaves ? 0.0F : 4500.0F, 0, 4500, 6000});  // twips
    }
    parent.resize(600, 400);
    parent.show();
  }

  QtLoop loop;
  NoNotices notices;
  frmMain model{loop};
  Commands commands{model, notices};
  QWidget parent;
  FavesPage page{model, commands, &parent};
  FaveEditor editor{model, commands, &parent};
};

TEST_F(FavesPageTest, keys_and_double_clicks_on_the_list_run_the_commands_of_its_buttons_while_those_can_be_pressed) {
  std::string run;
  commands.add(command::editFave, [&run] { run += 'e'; });
  commands.add(command::deleteFave, [&run] { run += 'd'; });
  model.myFaves1.add({"CTF", "", "192.0.2.1:2302", "One"});
  auto* const list = page.findChild<FavesListView*>("myFaves1");
  for (const bool enabled : {true, false}) {
    model.cmdMenu[command::deleteFave].enabled.set(enabled);
    QTest::keyClick(list, Qt::Key_Delete);
    model.cmdMenu[command::editFave].enabled.set(enabled);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
  }
  EXPECT_EQ(run, "dee");
}

TEST_F(FavesPageTest, a_button_that_goes_off_under_a_key_keeps_the_second_press_from_the_next_button) {
  std::string run;
  auto* const add = editor.findChild<QWidget*>("cmdMenu24");
  commands.add(command::addFave, [&] {
    run += 'a';
    model.cmdMenu[command::addFave].enabled.set(false);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    model.cmdMenu[command::addFave].enabled.set(true);
  });
  commands.add(command::updateFave, [&run] { run += 'u'; });
  parent.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&parent));
  add->setFocus();
  QTest::keyClick(add, Qt::Key_Space);
  EXPECT_EQ(run, "a");
  EXPECT_TRUE(add->hasFocus());
}

}  // namespace
}  // namespace vantrel

// The settings, the favorites with their editor and the help, in the main window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QTest>
#include <map>

#include "appearance/WindowLayout.h"
#include "browser/Pages.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/TextField.h"
#include "desktop/pages/HelpText.h"
#include "desktop/window/MainWindow.h"

namespace vantrel {
namespace {

struct SilentNotices : Notices {
  void ShowPopMsg(const std::string& /*text*/) override {}
  void popUpBalloon(const std::string& /*text*/, const std::string& /*title*/) override {}
};

struct PagesTest : ::testing::Test {
  PagesTest() {
    model.txtFAQ.caption.set(helpText());
    layout.layoutPanels();
    window.resize(671, 553);
    model.visible.set(true);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void open(command::Number page) {
    commands.cmdMenu_Click(page);
    QCoreApplication::processEvents();
  }
  template <class T = QWidget>
  T* find(const QString& name) {
    return window.findChild<T*>(name);
  }

  QtLoop loop;
  SilentNotices notices;
  frmMain model{loop};
  Commands commands{model, notices};
  Pages pages{model, commands, notices};
  WindowLayout layout{model};
  SweepProgress progress;
  frmMsg question{loop};
  MainWindow window{model, commands, progress, question};
};

TEST_F(PagesTest, each_check_box_of_the_settings_is_the_switch_of_its_name) {
  open(command::showSettings);
  std::map<QString, CheckBox*> boxes{
      {"chkSplash", &model.chkSplash}, {"chkOldSplash", &model.chkOldSplash}, {"chkMsg", &question.chkMsg}};
  for (const std::size_t number : {0U, 1U, 2U, 3U, 5U, 6U}) {
    boxes[QStringLiteral("chkOptions%1").arg(number)] = &model.chkOptions[number];
  }
  for (const auto& [name, box] : boxes) {
    find<QCheckBox>(name)->click();
    EXPECT_EQ(box->value.get(), 1) << name.toStdString();
    box->value.set(2);
    EXPECT_EQ(find<QCheckBox>(name)->checkState(), Qt::PartiallyChecked) << name.toStdString();
    EXPECT_EQ(box->value.get(), 2) << "what is shown comes back to the model";
  }
}

TEST_F(PagesTest, a_favorites_password_is_dots_until_it_is_asked_for_on_each_visit_and_the_lines_about_it_are_plain) {
  model.txtPass.text.set("secret");
  for (int visit = 0; visit < 2; ++visit) {
    open(command::showTools);
    open(command::showFaves);
    EXPECT_FALSE(find<QLineEdit>("txtPass")->displayText().contains("secret"));
    QTest::keyClick(find("txtID"), Qt::Key_Z, Qt::AltModifier);
    EXPECT_EQ(find<QLineEdit>("txtPass")->displayText(), "secret");
  }
  model.List1.add("Map: <i>gulch</i>\ttwo");
  ASSERT_EQ(find<QListWidget>("List1")->count(), 1);
  EXPECT_EQ(find<QListWidget>("List1")->item(0)->text(), "Map: <i>gulch</i> two");
  model.List1.clear();
  EXPECT_EQ(find<QListWidget>("List1")->count(), 0);
}

}  // namespace
}  // namespace vantrel

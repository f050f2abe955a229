// The settings, the favorites with their editor and the help, in the main window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QWheelEvent>
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
  MainWindow window{model, commands, progress};
};

TEST_F(PagesTest, each_check_box_of_the_settings_is_the_switch_of_its_name) {
  open(command::showSettings);
  std::map<QString, CheckBox*> boxes{{"chkSplash", &model.chkSplash}, {"chkOldSplash", &model.chkOldSplash}};
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

TEST_F(PagesTest, a_combo_box_keeps_what_the_user_types_or_chooses_but_not_what_the_wheel_turns_up) {
  open(command::showSettings);
  model.cmbVid.text.set("-mine");
  model.cmbVid.items.set({" ", "-use11"});
  model.cmbShowTab.text.set("Elsewhere");
  EXPECT_EQ(find<QComboBox>("cmbVid")->currentText(), "-mine") << "a text that is not in the list";
  EXPECT_EQ(find<QComboBox>("cmbShowTab")->placeholderText(), "Elsewhere");
  EXPECT_EQ(find<QComboBox>("cmbShowTab")->currentIndex(), -1);
  find("cmbVid")->setFocus();
  QTest::keyClicks(QApplication::focusWidget(), "s");
  EXPECT_EQ(model.cmbVid.text.get(), "-mines");
  model.cmbVid.text.set("");
  QTest::keyClicks(QApplication::focusWidget(), "-use1");
  EXPECT_EQ(find<QComboBox>("cmbVid")->currentText(), "-use1") << "no proposal completes it";
  QTest::keyClick(find("cmbShowTab"), Qt::Key_Down);
  QWheelEvent turn(QPointF(5, 5), find("cmbShowTab")->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(find("cmbShowTab"), &turn);
  EXPECT_EQ(model.cmbShowTab.text.get(), "Current Game");
}

TEST_F(PagesTest, the_help_tells_of_every_switch_from_its_beginning_with_headings_and_without_markup) {
  open(command::showSettings);
  EXPECT_EQ(find<QTextEdit>("txtFAQ")->verticalScrollBar()->value(), 0);
  for (const std::size_t number : {0U, 1U, 2U, 3U}) {
    EXPECT_NE(helpText().find(model.chkOptions[number].caption.get()), std::string::npos) << number;
  }
  model.txtFAQ.caption.set("<b>One</b>:\r\n<img src='file:///etc/hostname'>&amp; a: b\n\nTwo:\n");
  const QTextDocument* const shown = find<QTextEdit>("txtFAQ")->document();
  EXPECT_EQ(shown->toPlainText(), "<b>One</b>\n<img src='file:///etc/hostname'>&amp; a: b\nTwo");
  EXPECT_TRUE(shown->firstBlock().begin().fragment().charFormat().fontWeight() == QFont::Bold);
  EXPECT_FALSE(shown->firstBlock().next().begin().fragment().charFormat().fontWeight() == QFont::Bold);
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

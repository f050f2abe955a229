#include "desktop/window/MsgWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <string>

#include "desktop/adapters/QtLoop.h"

namespace vantrel {
namespace {

// The question above another window; `told` notes what the user does, by a letter each.
struct MsgWindowTest : ::testing::Test {
  MsgWindowTest() {
    owner.resize(500, 400);
    owner.show();
    model.visible.set(true);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  QtLoop loop;
  frmMsg model{loop};
  QWidget owner;
  MsgWindow window{model, &owner};
  std::string told;
  Connection yes = model.yesClicked.connect([this] { told += 'y'; });
  Connection no = model.noClicked.connect([this] { told += 'n'; });
  Connection closing = model.closed.connect([this] { told += 'c'; });
};

TEST_F(MsgWindowTest, each_answer_is_told_and_the_window_stays_until_the_model_hides_it) {
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
  QApplication::sendEvent(QApplication::focusWidget(), &held);
  EXPECT_EQ(told, "") << "the key that has led here is still held";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  for (const auto& [letter, answers] : {std::pair(Qt::Key_N, "yn"), std::pair(Qt::Key_Y, "yny")}) {
    QTest::keyClick(&window, letter, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this, answers = answers] { return told == answers; })) << told;
  }
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.close());
  EXPECT_EQ(told, "ynycc");
  EXPECT_TRUE(window.isVisible());
  const Connection hiding = model.closed.connect([this] { model.visible.set(false); });
  EXPECT_TRUE(window.close());
  EXPECT_FALSE(window.isVisible());
}

TEST_F(MsgWindowTest, it_comes_up_in_the_middle_of_its_owner_but_on_the_screen_with_yes_as_the_answer_of_enter) {
  const QRect screen = owner.screen()->availableGeometry();
  for (const QPoint& place : {screen.topLeft() + QPoint(40, 40), screen.bottomRight() - QPoint(60, 60)}) {
    window.findChild<QPushButton*>("cmdNo")->setFocus();
    model.visible.set(false);
    owner.move(place);
    model.visible.set(true);
    EXPECT_TRUE(screen.contains(window.frameGeometry()));
    EXPECT_EQ(window.focusWidget()->objectName(), "cmdYes");
    const QPoint away = window.geometry().center() - owner.geometry().center();
    EXPECT_EQ(away.manhattanLength() <= 2, screen.contains(owner.geometry()));
  }
}

}  // namespace
}  // namespace vantrel

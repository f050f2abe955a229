#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <numeric>

#include "desktop/adapters/NoticeLayout.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/QtNotices.h"

namespace vantrel {
namespace {

constexpr int longTime = 60'000;  // milliseconds: such a notice ends only by what a test does
constexpr int shortTime = 80;

// The notices of this name, "popMsg" or "balloon", that are on the screen.
QWidgetList onScreen(const char* name) {
  QWidgetList shown;
  for (QWidget* const each : QApplication::topLevelWidgets()) {
    if (each->objectName() == QLatin1String(name) && each->isVisible()) {
      shown << each;
    }
  }
  return shown;
}

// What can be read on a notice, from top to bottom.
QStringList textsOn(const QWidget* notice) {
  QStringList texts;
  for (const QLabel* const label : notice->findChildren<QLabel*>()) {
    if (label->isVisible()) {
      texts << label->text();
    }
  }
  return texts;
}

QStringList popMsgTexts() {
  const QWidgetList shown = onScreen("popMsg");
  return shown.isEmpty() ? QStringList() : textsOn(shown.first());
}

struct NoticesTest : ::testing::Test {
  NoticesTest() { QCursor::setPos(screen.center()); }

  // Opens a balloon and inside it another one, so many times, and then does `atTheEnd`.
  void nest(int balloons, const std::function<void()>& atTheEnd) {
    if (balloons == 0) {
      atTheEnd();
      return;
    }
    QTimer::singleShot(0, [this, balloons, &atTheEnd] { nest(balloons - 1, atTheEnd); });
    notices.popUpBalloon("balloon " + std::to_string(balloons), "");
    returned << balloons;
  }

  int timeOf(const std::function<void()>& act) {
    const std::uint64_t before = loop.tickCount();
    act();
    return static_cast<int>(loop.tickCount() - before);
  }

  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QtLoop loop;
  QtNotices notices{loop, longTime};
  QtNotices briefNotices{loop, shortTime};
  QList<int> returned;  // which balloons' calls did, in that order
};

TEST_F(NoticesTest, a_balloon_lets_events_run_until_the_user_takes_it_away_or_its_time_is_over) {
  for (const bool byItsButton : {false, true}) {
    QStringList seen;
    QTimer::singleShot(0, [&] {
      QWidget* const balloon = onScreen("balloon").first();
      seen = textsOn(balloon);
      QTest::mouseClick(byItsButton ? balloon->findChild<QAbstractButton*>() : balloon, Qt::LeftButton);
    });
    EXPECT_LT(timeOf([&] { notices.popUpBalloon("<b>Sm\xF8r</b>", ""); }), longTime / 2);
    EXPECT_EQ(seen, (QStringList{"Vantrel CE", QString::fromUtf8("<b>Smør</b>")})) << "a text is no markup";
  }
  EXPECT_GE(timeOf([&] { briefNotices.popUpBalloon("text", "title"); }), shortTime - 5);
  EXPECT_TRUE(onScreen("balloon").isEmpty());
}

TEST_F(NoticesTest, a_few_balloons_are_seen_inside_one_another_and_return_from_the_inside_out) {
  nest(static_cast<int>(QtNotices::mostBalloons), [this] {
    for (int i = 0; i < 100; ++i) {
      notices.popUpBalloon("one too many", "");
    }
    const QWidgetList shown = onScreen("balloon");
    EXPECT_EQ(shown.size(), static_cast<qsizetype>(QtNotices::mostBalloons));
    QStringList texts;
    for (QWidget* const one : shown) {
      texts << textsOn(one).last();
      EXPECT_TRUE(std::none_of(shown.begin(), shown.end(), [one](const QWidget* other) {
        return one != other && one->geometry().intersects(other->geometry());
      }));
    }
    EXPECT_EQ(texts.count("one too many"), 1);
    EXPECT_FALSE(texts.contains("balloon 1")) << "the innermost one is to show the new text";
    std::for_each(shown.begin(), shown.end(), [](QWidget* each) { QTest::mouseClick(each, Qt::LeftButton); });
  });
  EXPECT_EQ(returned.size(), static_cast<qsizetype>(QtNotices::mostBalloons));
  EXPECT_TRUE(std::is_sorted(returned.begin(), returned.end()));
}

TEST_F(NoticesTest, balloons_end_at_once_when_the_program_ends_and_none_begins_any_more) {
  nest(3, [this] { loop.beginEnding(); });
  EXPECT_EQ(returned.size(), 3);
  notices.popUpBalloon("too late", "");
  notices.ShowPopMsg("seen by nobody");
  notices.waitForNotice();
  EXPECT_TRUE(onScreen("balloon").isEmpty());
}

TEST_F(NoticesTest, a_short_message_returns_at_once_leaves_the_focus_alone_and_gives_way_to_the_next) {
  QWidget window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  notices.ShowPopMsg("one\r\ntwo\nthree");
  EXPECT_EQ(popMsgTexts(), QStringList{"one\ntwo\nthree"});
  ASSERT_TRUE(QTest::qWaitForWindowExposed(onScreen("popMsg").first()));
  EXPECT_TRUE(window.isActiveWindow());
  notices.ShowPopMsg("four");
  EXPECT_EQ(popMsgTexts(), QStringList{"four"});
  EXPECT_EQ(onScreen("popMsg").size(), 1);
  QTest::mouseClick(onScreen("popMsg").first(), Qt::LeftButton);
  EXPECT_TRUE(popMsgTexts().isEmpty());
}

TEST(NoticeLayout, a_text_breaks_at_blanks_where_it_can_anywhere_where_it_must_and_ends_in_an_ellipsis) {
  const QFont font;
  const int em = QFontMetrics(font).horizontalAdvance('W');
  const TextRoom room{em * 8 + em / 6, 3};
  const struct {
    const char* text;
    QString lines;
  } table[] = {
      {"", ""},
      {"WWWW WWWW", "WWWW\nWWWW"},
      {"\n W\r\n\rW \n", "W\n\nW"},
      {"W\tW\x01W", "W W W"},
      {"WWWWWWWWWWWW", "WWWWWWWW\nWWWW"},
      {"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", QString::fromUtf8("WWWWWWWW\nWWWWWWWW\nWWWWWWW…")},
      {"W\nW\nW\nW", QString::fromUtf8("W\nW\nW…")},
  };
  for (const auto& row : table) {
    EXPECT_EQ(fittedText(QString::fromLatin1(row.text), font, room).toStdString(), row.lines.toStdString());
  }
}

}  // namespace
}  // namespace vantrel

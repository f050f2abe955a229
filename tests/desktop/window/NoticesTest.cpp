#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/QtNotices.h"
#include "desktop/window/ProgressLine.h"

namespace vantrel {
namespace {

// The texts of the notice that is on the screen, from top to bottom; empty when there is none.
QStringList noticeOnScreen(QWidget** window = nullptr) {
  for (QWidget* const each : QApplication::topLevelWidgets()) {
    if (each->objectName() == "notice" && each->isVisible()) {
      QStringList texts;
      for (const QLabel* const label : each->findChildren<QLabel*>()) {
        if (label->isVisible()) {
          texts << label->text();
        }
      }
      if (window != nullptr) {
        *window = each;
      }
      return texts;
    }
  }
  return {};
}

TEST(Notices, a_balloon_lets_events_run_and_returns_when_the_user_clicks_it_away) {
  QtLoop loop;
  QtNotices notices(loop);
  QStringList seen;
  QTimer::singleShot(20, [&] {
    QWidget* window = nullptr;
    seen = noticeOnScreen(&window);
    QTest::mouseClick(window, Qt::LeftButton);
  });
  notices.popUpBalloon("<b>Sm\xF8r</b>", "");
  EXPECT_EQ(seen, (QStringList{"Vantrel CE", QString::fromUtf8("<b>Smør</b>")})) << "a text is no markup";
  EXPECT_TRUE(noticeOnScreen().isEmpty());
}

TEST(Notices, a_short_message_returns_at_once_and_the_next_takes_its_place) {
  QtLoop loop;
  QtNotices notices(loop);
  notices.ShowPopMsg("one");
  EXPECT_EQ(noticeOnScreen(), QStringList{"one"});
  notices.ShowPopMsg("two");
  EXPECT_EQ(noticeOnScreen(), QStringList{"two"});
}

TEST(ProgressLine, tells_how_many_were_asked_and_how_many_of_those_have_answered) {
  SweepProgress progress;
  const ProgressLine line(progress);
  EXPECT_EQ(line.text(), "");
  progress.listed.set(3);
  progress.walking.set(true);
  progress.noteQuery("192.0.2.1", 2302);
  progress.noteQuery("192.0.2.2", 2302);
  for (int i = 0; i < 2; ++i) {
    progress.noteReply("192.0.2.1", 2302);
    progress.noteReply("192.0.2.9", 2302);
  }
  EXPECT_EQ(line.text(), QString::fromUtf8("2 of 3 asked  ·  1 answered"));
  progress.walking.set(false);
  EXPECT_EQ(line.text(), QString::fromUtf8("2 asked  ·  1 answered"));
}

}  // namespace
}  // namespace vantrel

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "appearance/Announcements.h"
#include "appearance/modTray.h"
#include "core/Commands.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/QtPopupDisplays.h"
#include "desktop/adapters/QtTray.h"
#include "desktop/controls/ZorbelLabelView.h"
#include "desktop/text/NoticeLayout.h"
#include "desktop/window/MainWindow.h"
#include "desktop/window/PopMsgWindow.h"
#include "support/FakeDesktop.h"
#include "support/FakeRegistry.h"
#include "support/FakeTray.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

QWidgetList onScreen(const char* name) {
  QWidgetList shown;
  for (QWidget* const each : QApplication::topLevelWidgets()) {
    if (each->objectName() == QLatin1String(name) && each->isVisible()) {
      shown << each;
    }
  }
  return shown;
}

// What can be read on a balloon, from top to bottom.
QStringList textsOn(const QWidget* notice) {
  QStringList texts;
  for (const QLabel* const label : notice->findChildren<QLabel*>()) {
    if (label->isVisible()) {
      texts << label->text();
    }
  }
  return texts;
}

struct PopMsgWindowTest : ::testing::Test {
  void drag(QPoint from, QPoint by) {
    const auto send = [this](QEvent::Type type, QPoint global) {
      QMouseEvent event(type, window.mapFromGlobal(global), global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&window, &event);
    };
    const QPoint start = window.mapToGlobal(from);
    send(QEvent::MouseButtonPress, start);
    send(QEvent::MouseMove, start + by / 2);
    send(QEvent::MouseMove, start + by);
    send(QEvent::MouseButtonRelease, start + by);
  }

  VirtualLoop loop;
  FakeRegistry registry;
  frmPopMsg model{loop, registry};
  PopMsgWindow window{model};
};

TEST_F(PopMsgWindowTest, a_message_comes_up_without_the_focus_shows_any_text_as_it_is_and_goes) {
  QWidget worked;
  worked.show();
  worked.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&worked));
  model.ShowPopMsg("<b>Sm\xF8r</b>\r\ntwo\nthree");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_TRUE(worked.isActiveWindow());
  EXPECT_EQ(window.shownText(), QString::fromUtf8("<b>Smør</b>\ntwo\nthree"));
  EXPECT_EQ(window.pos(), QPoint(67, 67)) << "1000 twips";
  const int threeLines = window.height();
  model.ShowPopMsg("one");
  EXPECT_LT(window.height(), threeLines) << "the middle stretches with the text";
  EXPECT_EQ(model.place.get().Height, static_cast<float>(window.height()) * twipsPerPixel);
  window.close();
  EXPECT_FALSE(window.isVisible()) << "nothing was seen of it yet";
  model.ShowPopMsg("two");
  loop.wait(100);
  window.close();
  EXPECT_TRUE(window.isVisible()) << "it fades first";
  loop.wait(1300);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(PopMsgWindowTest, a_text_of_a_stranger_is_cut_and_the_window_stays_on_its_screen) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const char* const place : {"-90000", "900000", "1000"}) {
    for (const char* const name : {"Left", "Top"}) {
      registry.write(RegistryRoot::currentUser, "Software\\Office2003\\Position", name, RegistryType::text, place);
    }
    for (const std::string& text : {std::string(100'000, 'W'), std::string(100'000, '\n'), std::string(300, '\x01'),
                                    std::string("a\0b", 3), std::string()}) {
      model.ShowPopMsg(text);
      EXPECT_TRUE(screen.contains(window.geometry())) << place << " " << text.size();
      EXPECT_FALSE(window.grab().isNull());
      model.requestUnload();
    }
  }
}

TEST_F(PopMsgWindowTest, the_window_follows_the_mouse_that_drags_it_and_its_cross_closes_it) {
  model.ShowPopMsg("text");
  loop.wait(100);
  const QPoint before = window.pos();
  drag({50, 40}, {60, 30});
  EXPECT_EQ(window.pos(), before + QPoint(60, 30));
  loop.wait(2000);
  auto* const cross = window.findChild<QAbstractButton*>("Office2003_Button1");
  QTest::mouseClick(cross, Qt::LeftButton, {}, {1, 0});
  EXPECT_EQ(model.Office2003_PopupMessage1.TransparencyDirection, 0) << "beside the disc";
  QTest::mouseClick(cross, Qt::LeftButton);
  EXPECT_LT(model.Office2003_PopupMessage1.TransparencyDirection, 0);
  loop.wait(400);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(window.pos(), before + QPoint(60, 30));
}

TEST_F(PopMsgWindowTest, each_look_of_the_cross_is_another_picture) {
  model.ShowPopMsg("text");
  auto* const cross = window.findChild<QAbstractButton*>("Office2003_Button1");
  const QImage normal = cross->grab().toImage();
  QTest::mousePress(cross, Qt::LeftButton);
  const QImage pressed = cross->grab().toImage();
  QTest::mouseRelease(cross, Qt::LeftButton);
  const QImage hover = cross->grab().toImage();
  EXPECT_TRUE(normal != pressed && pressed != hover && normal != hover);
}

struct BalloonWindowTest : ::testing::Test {
  BalloonWindowTest() { QCursor::setPos(screen.center()); }

  PopupRequest request(const std::string& text) {
    popup.Text11.text.set(text);
    popup.Combo4.text.set("Balloon");
    return popup.request();
  }
  std::string show(const PopupRequest& wanted) { return displays.create()->popUpBalloon(wanted); }

  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QtLoop loop;
  FakeRegistry registry;
  FakeDialogs dialogs;
  frmPopMsg message{loop, registry};
  frmPopup popup;
  QtPopupDisplays displays;
  Announcements notices{{loop, message, popup, displays, dialogs}};
};

TEST_F(BalloonWindowTest, a_balloon_lets_events_run_until_the_user_takes_it_away) {
  for (const bool byItsButton : {false, true}) {
    QStringList seen;
    QTimer::singleShot(0, [&] {
      QWidget* const balloon = onScreen("balloon").first();
      seen = textsOn(balloon);
      QTest::mouseClick(byItsButton ? balloon->findChild<QAbstractButton*>("close") : balloon, Qt::LeftButton);
    });
    const std::uint64_t before = loop.tickCount();
    notices.popUpBalloon("<b>Sm\xF8r</b>", "");
    EXPECT_LT(loop.tickCount() - before, 2500u);
    EXPECT_EQ(seen, (QStringList{"Vantrel CE", QString::fromUtf8("<b>Smør</b>")})) << "a text is no markup";
    EXPECT_TRUE(onScreen("balloon").isEmpty());
  }
}

TEST_F(BalloonWindowTest, a_balloon_ends_by_itself_when_its_time_is_over_and_one_without_a_time_does_not) {
  PopupRequest brief = request("brief");
  brief.autoCloseSeconds = 0.05;
  PopupRequest lasting = request("lasting");
  lasting.autoCloseSeconds = 0;
  EXPECT_EQ(show(lasting) + show(brief), "");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !popup.msgBack.empty(); }, 5000));
  EXPECT_EQ(popup.msgBack, "MiscEv");
  ASSERT_EQ(onScreen("balloon").size(), 1);
  EXPECT_EQ(textsOn(onScreen("balloon").first()).last(), "lasting");
}

TEST_F(BalloonWindowTest, the_buttons_that_are_wanted_are_there_and_the_pressed_one_is_the_answer) {
  popup.Option1 = {false, true, false, true};
  popup.txt3.text.set("Ignore && go");
  ASSERT_EQ(show(request("text")), "");
  QWidget* const balloon = onScreen("balloon").first();
  const QList<QPushButton*> buttons = balloon->findChildren<QPushButton*>();
  ASSERT_EQ(buttons.size(), 3) << "the cross is one, too";
  QTest::mouseClick(buttons.last(), Qt::LeftButton);
  EXPECT_EQ(popup.msgBack, "Ignore && go");
  EXPECT_TRUE(onScreen("balloon").isEmpty());
  popup.Combo4.text.set("Input");
  EXPECT_NE(show(popup.request()), "");
  EXPECT_TRUE(onScreen("balloon").isEmpty());
}

TEST_F(BalloonWindowTest, balloons_do_not_hide_one_another_and_one_too_many_takes_the_place_of_the_newest) {
  for (std::size_t i = 0; i < QtPopupDisplays::mostBalloons; ++i) {
    show(request("balloon " + std::to_string(i)));
  }
  for (int i = 0; i < 100; ++i) {
    show(request("one too many"));
  }
  const QWidgetList shown = onScreen("balloon");
  ASSERT_EQ(shown.size(), static_cast<qsizetype>(QtPopupDisplays::mostBalloons));
  QStringList texts;
  for (QWidget* const one : shown) {
    texts << textsOn(one).last();
    EXPECT_TRUE(screen.contains(one->geometry()));
    EXPECT_TRUE(std::none_of(shown.begin(), shown.end(), [one](const QWidget* other) {
      return one != other && one->geometry().intersects(other->geometry());
    }));
  }
  EXPECT_EQ(texts.count("one too many"), 1);
  EXPECT_FALSE(texts.contains("balloon 7"));
  displays.endAll();
  EXPECT_TRUE(onScreen("balloon").isEmpty());
  EXPECT_EQ(popup.msgBack, "MiscEv");
}

TEST_F(BalloonWindowTest, each_icon_is_another_picture_and_any_text_is_kept_on_the_screen) {
  QList<QImage> seen;
  for (const char* const icon : {"No Icon", "Critical", "Exclamation", "Information"}) {
    popup.Combo1.text.set(icon);
    show(request("text"));
    QImage picture = onScreen("balloon").first()->grab().toImage();
    EXPECT_FALSE(seen.contains(picture)) << icon;
    seen << picture;
    displays.endAll();
  }
  popup.Combo2.text.set("32");
  popup.txtTitle.text.set(std::string(5000, 'T'));
  show(request(std::string(100'000, 'W')));
  EXPECT_TRUE(screen.contains(onScreen("balloon").first()->geometry()));
}

TEST_F(BalloonWindowTest, a_wait_ends_when_the_program_does) {
  QTimer::singleShot(0, [this] {
    QTimer::singleShot(0, [this] { loop.beginEnding(); });
    notices.popUpBalloon("inner", "");
  });
  notices.popUpBalloon("outer", "");
  notices.popUpBalloon("too late", "");
  EXPECT_EQ(onScreen("balloon").size(), 2);
}

TEST(QtTray, a_tray_that_goes_and_comes_is_noticed_and_gets_a_persistent_icon_anew) {
  bool standing = false;
  QtTray tray([&standing] { return standing; }, 1);
  QStringList told;
  const Connection lost = tray.lost.connect([&told] { told << "lost"; });
  const Connection refreshed = tray.Refreshed.connect([&told] { told << "refreshed"; });
  const auto become = [&standing](bool there) {
    standing = there;
    QTest::qWait(30);
  };
  tray.setUp({{"Restore", "Exit"}, TrayButton::right, "Vantrel\r\n"});
  tray.setPersistent(true);
  tray.setIconVisible(true);
  EXPECT_FALSE(tray.isIconVisible());
  become(true);
  EXPECT_TRUE(tray.isIconVisible());
  EXPECT_TRUE(told.isEmpty()) << "a desktop that is still coming up has restarted nothing";
  become(false);
  EXPECT_FALSE(tray.isIconVisible());
  become(true);
  EXPECT_TRUE(tray.isIconVisible());
  EXPECT_EQ(told, (QStringList{"lost", "refreshed"}));
  tray.setPersistent(false);
  become(false);
  become(true);
  EXPECT_FALSE(tray.isIconVisible());
  EXPECT_EQ(told.size(), 4);
}

// The main window with its icon in a tray that stands or does not.
struct TrayWindowTest : ::testing::Test {
  TrayWindowTest() {
    model.visible.set(true);
    icon.load();
  }
  void settle() { loop.wait(30); }

  QtLoop loop;
  FakeRegistry registry;
  FakeDialogs dialogs;
  frmPopMsg message{loop, registry};
  frmPopup popup;
  QtPopupDisplays displays;
  Announcements notices{{loop, message, popup, displays, dialogs}};
  frmMain model{loop};
  Commands commands{model, notices};
  SweepProgress progress;
  frmMsg question{loop};
  MainWindow window{model, commands, progress, question};
  FakeTray tray;
  modTray icon{{tray, model, notices, [] {}, [] {}}};
};

TEST_F(TrayWindowTest, a_minimised_window_is_off_the_screen_while_it_is_in_the_tray_and_comes_back_as_it_was) {
  for (const bool isMaximized : {false, true}) {
    window.setWindowState(isMaximized ? Qt::WindowMaximized : Qt::WindowNoState);
    settle();
    window.showMinimized();
    settle();
    EXPECT_TRUE(icon.isInTray());
    EXPECT_FALSE(window.isVisible());
    tray.Click.fire(TrayButton::left);
    settle();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(window.isMaximized(), isMaximized);
  }
}

TEST_F(TrayWindowTest, without_a_tray_and_when_it_goes_away_the_window_is_minimised_as_windows_are) {
  window.showMinimized();
  settle();
  tray.crash();
  settle();
  EXPECT_TRUE(window.isVisible() && window.isMinimized());
  model.windowState.set(WindowState::normal);
  settle();
  window.showMinimized();
  settle();
  EXPECT_TRUE(window.isVisible() && window.isMinimized());
  EXPECT_EQ(model.windowState.get(), WindowState::minimized);
}

TEST(ZorbelLabelView, the_model_follows_the_size_of_the_view_and_its_caption_is_shown) {
  ZorbelLabel model;
  ZorbelLabelView view(model, "ZorbelLabel1", nullptr);
  view.resize(200, 60);
  view.show();
  EXPECT_EQ(model.Shpmain[1].Height, 39);
  const QImage empty = view.grab().toImage();
  model.setForeColor(colors::white);
  model.setCaption("Servers");
  EXPECT_NE(view.grab().toImage(), empty);
  EXPECT_EQ(view.accessibleName(), "Servers");
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

// The balloon that is waited for, and what goes on meanwhile.

#include <gtest/gtest.h>

#include "appearance/Announcements.h"
#include "support/FakeDesktop.h"
#include "support/FakeRegistry.h"
#include "support/FakeTray.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

struct BalloonTest : testing::Test {
  // How long a call took, in milliseconds.
  std::uint64_t timeOf(const std::string& text, const std::string& title) {
    const std::uint64_t before = loop.tickCount();
    notices.popUpBalloon(text, title);
    return loop.tickCount() - before;
  }

  VirtualLoop loop;
  FakeRegistry registry;
  FakeDialogs dialogs;
  FakePopupDisplays displays{loop};
  frmPopMsg message{loop, registry};
  frmPopup popup;
  Announcements notices{{loop, message, popup, displays, dialogs}};
};

TEST_F(BalloonTest, a_balloon_ends_by_itself_after_three_seconds_and_has_the_programs_name_without_a_title) {
  EXPECT_EQ(timeOf("Select mirror to remove!", ""), 3000u);
  EXPECT_EQ(timeOf("Please select a mirror!", "No Mirror Selected!"), 3000u);
  ASSERT_EQ(displays.shown.size(), 2u);
  const PopupRequest& first = displays.shown[0];
  EXPECT_EQ(first.message, "Select mirror to remove!");
  EXPECT_EQ(first.title, "Vantrel CE");
  EXPECT_EQ(first.icon, 64);
  EXPECT_TRUE(first.closeButton && first.atMouse);
  EXPECT_EQ(first.autoCloseSeconds, 3);
  EXPECT_EQ(first.fontSize, 8);
  EXPECT_EQ(first.fontFace, "Tahoma");
  EXPECT_EQ(first.left + first.top, 0);
  EXPECT_FALSE(first.first.shown || first.second.shown || first.third.shown || first.reserved);
  EXPECT_EQ(first.first.text + first.second.text + first.third.text, "AbortRetryIgnore");
  EXPECT_EQ(first.style, "Balloon");
  EXPECT_EQ(displays.shown[1].title, "No Mirror Selected!");
  EXPECT_EQ(popup.Text3[0].text.get(), "34") << "the fields are as at first again";
}

TEST_F(BalloonTest, the_fields_say_what_a_balloon_is_like) {
  const struct {
    const char* icon;
    int code;
  } icons[] = {{"No Icon", 0}, {"Critical", 16}, {"Exclamation", 48}, {"Information", 64}};
  for (const auto& [icon, code] : icons) {
    popup.Combo1.text.set(icon);
    EXPECT_EQ(popup.request().icon, code);
  }
  popup.Check2.value.set(0);
  popup.Option1[2] = true;
  EXPECT_EQ(popup.request().autoCloseSeconds, 0);
  EXPECT_TRUE(popup.request().second.shown);
  EXPECT_FALSE(popup.request().first.shown);
  popup.InputBack("one,two,three");
  EXPECT_EQ(popup.firstInput + " " + popup.lastInput, "one three");
}

TEST_F(BalloonTest, what_the_component_says_beyond_an_end_by_itself_is_shown_in_a_message_box) {
  dialogs.answers.assign(3, "ok");
  displays.answer = "Retry";
  EXPECT_EQ(timeOf("text", ""), 3000u);
  displays.trouble = "No room.";
  EXPECT_EQ(timeOf("text", ""), 0u);
  displays.missing = true;
  EXPECT_EQ(timeOf("text", ""), 0u);
  EXPECT_EQ(dialogs.asked, (std::vector<std::string>{"|Retry", "|No room.", "|Popup.dll not registered."}));
}

TEST_F(BalloonTest, a_field_that_is_no_number_shows_no_balloon_and_holds_up_nobody) {
  popup.Text2.text.set("soon");
  EXPECT_EQ(timeOf("text", ""), 0u);
  EXPECT_TRUE(displays.shown.empty());
  EXPECT_EQ(timeOf("text", ""), 3000u);
}

TEST_F(BalloonTest, events_run_under_a_balloon_and_balloons_inside_one_another_share_the_fields) {
  std::string order;
  loop.at(1000, [&] {
    EXPECT_EQ(timeOf("inner", ""), 2000u) << "the answer for the outer one is the answer for both";
    order += "inner ";
  });
  EXPECT_EQ(timeOf("outer", ""), 3000u);
  order += "outer ";
  EXPECT_EQ(order, "inner outer ");
  loop.wait(500);
  EXPECT_EQ(timeOf("next", ""), 500u) << "the inner balloon's own end comes while the next one waits";
  loop.wait(5000);
  EXPECT_EQ(timeOf("last", ""), 3000u);
}

TEST_F(BalloonTest, the_end_of_the_program_ends_every_wait_and_no_balloon_begins_any_more) {
  loop.at(500, [this] { notices.popUpBalloon("inner", ""); });
  loop.at(1000, [this] { loop.ends = true; });
  EXPECT_EQ(timeOf("outer", ""), 1000u);
  EXPECT_EQ(displays.shown.size(), 2u);
  notices.popUpBalloon("too late", "");
  EXPECT_EQ(displays.shown.size(), 2u);
  EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(BalloonTest, the_last_message_is_waited_for_until_it_has_faded_and_no_longer) {
  const auto wait = [this] {
    const std::uint64_t before = loop.tickCount();
    notices.waitForNotice();
    return loop.tickCount() - before;
  };
  EXPECT_EQ(wait(), 0u);
  notices.ShowPopMsg("Vantrel CE is already running");
  EXPECT_EQ(wait(), 3300u);
  notices.ShowPopMsg("one");
  loop.wait(3100);
  notices.ShowPopMsg("two");
  EXPECT_EQ(wait(), 4000u);
}

}  // namespace
}  // namespace vantrel

// The short message: how it fades, stays, is replaced and is dragged, to the millisecond.

#include <gtest/gtest.h>

#include "appearance/SetWindowAlpha.h"
#include "appearance/frmPopMsg.h"
#include "support/FakeRegistry.h"
#include "support/FakeTray.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

constexpr const char* key = "Software\\Office2003\\Position";

struct PopMsgTest : testing::Test {
  PopMsgTest() { window.setLayer(&layer); }
  // Where the message's opacity stands: level, direction and what was last set, or "gone".
  std::string state() const {
    if (!window.isLoaded()) {
      return "gone";
    }
    const std::size_t last = layer.log.rfind(':');
    return std::to_string(window.Office2003_PopupMessage1.TransparencyLevel) + " " +
           std::to_string(window.Office2003_PopupMessage1.TransparencyDirection) + " at " +
           layer.log.substr(last + 1, layer.log.size() - last - 2);
  }
  std::string stateAt(std::uint64_t tick) {
    loop.wait(static_cast<int>(tick - loop.tickCount()));
    return state();
  }
  std::string kept(const char* name) const {
    return registry.read(RegistryRoot::currentUser, key, name).value_or("none");
  }

  VirtualLoop loop;
  FakeRegistry registry;
  FakeLayer layer{loop};
  frmPopMsg window{loop, registry};
  Office2003_PopupMessage& control = window.Office2003_PopupMessage1;
};

TEST_F(PopMsgTest, a_message_comes_up_in_seven_steps_rests_for_three_seconds_and_goes_in_small_ones) {
  window.ShowPopMsg("Welcome back.");
  EXPECT_TRUE(window.visible.get());
  EXPECT_EQ(control.Caption(), "Welcome back.");
  EXPECT_EQ(stateAt(70), "255 0 at 216");
  EXPECT_EQ(layer.log, "0:0 10:0 20:36 30:72 40:108 50:144 60:180 70:216 ");
  EXPECT_EQ(stateAt(2999), "255 0 at 216");
  layer.log.clear();
  EXPECT_EQ(stateAt(3020), "231 -8 at 239");
  EXPECT_EQ(layer.log, "3000:255 3010:247 3020:239 ");
  EXPECT_EQ(stateAt(3290), "15 -8 at 23");
  EXPECT_EQ(stateAt(3300), "gone");
  EXPECT_EQ(layer.log.substr(layer.log.size() - 15), "3300:15 3300:0 ");
  EXPECT_FALSE(window.visible.get());
  EXPECT_FALSE(control.Timer1.enabled());
  EXPECT_FALSE(window.tmrHide.enabled());
}

TEST_F(PopMsgTest, two_messages_within_three_seconds_share_one_window_and_the_time_of_the_first) {
  window.ShowPopMsg("one");
  EXPECT_EQ(stateAt(2000), "255 0 at 216");
  window.ShowPopMsg("two");
  EXPECT_EQ(control.Caption(), "two");
  EXPECT_EQ(stateAt(2990), "255 0 at 255");
  EXPECT_EQ(stateAt(3100).substr(4, 2), "-8");
  EXPECT_EQ(stateAt(3300), "gone");
}

TEST_F(PopMsgTest, a_falling_message_that_gets_a_new_text_comes_back_and_stays_until_it_is_closed) {
  window.ShowPopMsg("one");
  stateAt(3200);
  window.ShowPopMsg("two");
  EXPECT_EQ(control.TransparencyDirection, 36);
  EXPECT_EQ(stateAt(3270).substr(0, 5), "255 0");
  EXPECT_EQ(stateAt(60'000).substr(0, 5), "255 0");
  window.Office2003_Button1.Click.fire();
  EXPECT_EQ(control.TransparencyDirection, -8);
  EXPECT_EQ(stateAt(60'310), "gone");
  window.ShowPopMsg("three");
  EXPECT_EQ(stateAt(60'310 + 3000 + 310), "gone") << "a window that is loaded anew has three seconds again";
}

TEST_F(PopMsgTest, a_window_that_is_asked_to_go_refuses_and_fades_slowly_unless_nothing_is_seen_of_it) {
  window.ShowPopMsg("text");
  window.requestUnload();
  EXPECT_EQ(state(), "gone");
  window.ShowPopMsg("text");
  stateAt(100);
  window.requestUnload();
  EXPECT_EQ(state(), "255 -2 at 216");
  EXPECT_EQ(stateAt(100 + 1260).substr(0, 4), "3 -2");
  EXPECT_EQ(stateAt(100 + 1270), "gone");
}

TEST_F(PopMsgTest, the_close_button_does_nothing_to_a_window_that_cannot_be_seen_yet) {
  window.ShowPopMsg("text");
  window.Office2003_Button1.Click.fire();
  EXPECT_EQ(control.TransparencyDirection, 36);
}

TEST_F(PopMsgTest, a_level_out_of_range_hides_a_falling_window_and_an_error_of_the_platform_does_not_stop_the_fade) {
  window.ShowPopMsg("text");
  layer.fails = true;
  EXPECT_EQ(stateAt(100), "255 0 at 216");
  control.TransparencyLevel = 300;
  control.TransparencyDirection = 36;
  stateAt(110);
  EXPECT_TRUE(window.visible.get());
  control.TransparencyLevel = 300;
  control.TransparencyDirection = -8;
  stateAt(120);
  EXPECT_FALSE(window.visible.get());
  EXPECT_TRUE(window.isLoaded());
}

TEST_F(PopMsgTest, the_opacity_of_a_window_is_0_to_255_and_says_what_became_of_it) {
  for (const auto& [level, result] : {std::pair(-1, 1), {0, 0}, {255, 0}, {256, 1}}) {
    layer.log.clear();
    EXPECT_EQ(SetWindowAlpha(layer, level), result);
    EXPECT_EQ(layer.log.empty(), result == 1);
  }
  layer.fails = true;
  EXPECT_EQ(SetWindowAlpha(layer, 128), 2);
}

TEST_F(PopMsgTest, the_control_shows_and_hides_its_window_in_steps_of_its_own) {
  window.ShowPopMsg("text");
  int focused = 0;
  const Connection focus = window.focusWanted.connect([&focused] { ++focused; });
  control.MakeVisible();
  EXPECT_EQ(state(), "0 4 at 0");
  EXPECT_EQ(focused, 1);
  EXPECT_EQ(stateAt(620), "248 4 at 244");
  EXPECT_EQ(stateAt(630), "255 0 at 248");
  control.MakeInVisible();
  EXPECT_EQ(state(), "255 -4 at 255");
  EXPECT_EQ(stateAt(630 + 630), "gone");
}

TEST_F(PopMsgTest, a_dragged_window_comes_up_one_step_of_the_mouse_short_of_where_it_was_left) {
  window.ShowPopMsg("text");
  EXPECT_EQ(window.place.get().Left, 1000);
  EXPECT_EQ(window.place.get().Top, 1000);
  control.MouseMove.fire({MouseButton::left, 0, 900, 900});
  EXPECT_EQ(window.place.get().Left, 1000) << "nobody holds the window";
  control.MouseDown.fire({MouseButton::left, 0, 100.4F, 200});
  control.MouseMove.fire({MouseButton::left, 0, 160, 230});
  EXPECT_EQ(window.place.get().Left, 1060);
  EXPECT_EQ(window.place.get().Top, 1030);
  control.MouseMove.fire({MouseButton::left, 0, 115, 200});
  control.MouseUp.fire({MouseButton::left, 0, 115, 200});
  control.MouseMove.fire({MouseButton::left, 0, 900, 900});
  EXPECT_EQ(window.place.get().Left, 1075);
  EXPECT_EQ(kept("Left") + " " + kept("Top"), "1060 1030");
  EXPECT_EQ(stateAt(4000), "gone");
  window.ShowPopMsg("text");
  EXPECT_EQ(window.place.get().Left, 1060);
  EXPECT_EQ(window.place.get().Top, 1030);
}

TEST_F(PopMsgTest, a_stored_place_that_is_none_gives_the_first_one_and_a_closed_store_does_not_hold_up_a_drag) {
  for (const char* const text : {"", "left", "1e9", "99999999999", "-99999999"}) {
    registry.write(RegistryRoot::currentUser, key, "Left", RegistryType::text, text);
    window.ShowPopMsg("text");
    EXPECT_EQ(window.place.get().Left, 1000) << text;
    window.requestUnload();
  }
  registry.writable = false;
  window.ShowPopMsg("text");
  control.MouseDown.fire({});
  control.MouseMove.fire({MouseButton::left, 0, 15, 15});
  control.MouseUp.fire({});
  EXPECT_EQ(window.place.get().Left, 1015);
}

}  // namespace
}  // namespace vantrel

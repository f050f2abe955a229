// The button with its strip of pictures, and the caption in its frame.

#include <gtest/gtest.h>

#include "appearance/Office2003_Button.h"
#include "appearance/ZorbelLabel.h"
#include "platform/Failure.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

// Frames of 20 x 20; the left half counts as the button.
struct HalfStrip : ButtonStrip {
  int width() const override { return 20; }
  int height() const override { return 80; }
  bool isBlack(ButtonPoint pixel) const override { return pixel.x >= 0 && pixel.x < 10 && pixel.y >= 60; }
};

struct FakeHost : OfficeButtonHost {
  bool isParentActive() const override {
    if (fails) {
      throw failures::invalidArgument();
    }
    return active;
  }
  ButtonPoint pointer() const override { return at; }
  ButtonPoint size() const override { return {width, height}; }
  void resize(int newWidth, int newHeight) override {
    width = newWidth;
    height = newHeight;
  }

  bool active = true;
  bool fails = false;
  ButtonPoint at = {5, 5};
  int width = 50;
  int height = 30;
};

// What was drawn, in words.
struct WordCanvas : OfficeButtonCanvas {
  void drawFrame(int frame) override { drawn += "frame " + std::to_string(frame) + ";"; }
  void clear(Color color) override { drawn += "clear " + std::to_string(color) + ";"; }
  void drawBox(Color topAndLeft, Color bottomAndRight) override {
    drawn += "box " + std::to_string(topAndLeft & 0xFFFFFF) + " " + std::to_string(bottomAndRight & 0xFFFFFF) + ";";
  }
  void drawText(const std::string& text, int flags, Color color) override {
    drawn += text + " " + std::to_string(flags) + " " + std::to_string(color & 0xFFFFFF) + ";";
  }

  std::string drawn;
};

struct OfficeControlsTest : testing::Test {
  OfficeControlsTest() {
    button.setCaption("");
    button.setPicture(&strip);
    button.setHost(&host);
  }
  void pass(int milliseconds = 1) { loop.wait(milliseconds); }
  void point(ButtonPoint at) { host.at = at; }
  void enter() {
    point(onButton);
    button.mouseMove(MouseButton::left, host.at);
    pass();
  }
  void press(ButtonPoint at = onButton) { button.mouseDown(MouseButton::left, at); }
  void release() {
    button.mouseUp(MouseButton::left, host.at);
    button.click();
  }
  // What is on the screen, what the timer knows of, and whether it runs: "2 1 on".
  std::string state() const {
    return std::to_string(button.drawnLook()) + " " + std::to_string(button.look()) +
           (button.Timer1.enabled() ? " on" : " off");
  }
  std::string painted() const {
    WordCanvas canvas;
    button.paint(canvas);
    return canvas.drawn;
  }

  static constexpr ButtonPoint onButton = {5, 5};
  static constexpr ButtonPoint beside = {15, 5};  // on the picture, where its mask is white
  static constexpr ButtonPoint outside = {-1, 5};

  VirtualLoop loop;
  HalfStrip strip;
  FakeHost host;
  Office2003_Button button{loop};
  int clicks = 0;
  Connection clicked = button.Click.connect([this] { ++clicks; });
};

TEST_F(OfficeControlsTest, a_button_goes_through_its_looks_as_the_pointer_comes_presses_leaves_and_goes) {
  const struct {
    const char* deed;
    std::function<void()> act;
    const char* state;
  } story[] = {
      {"nothing yet", [this] { pass(5); }, "0 0 off"},
      {"the pointer comes", [this] { enter(); }, "1 1 on"},
      {"a press is drawn at once", [this] { press(); }, "2 1 on"},
      {"and known a tick later", [this] { pass(); }, "2 2 on"},
      {"the pointer leaves the pressed button", [this] { point(outside), pass(); }, "1 1 on"},
      {"and stays away", [this] { pass(100); }, "1 1 on"},
      {"it comes back", [this] { point(onButton), pass(); }, "2 2 on"},
      {"the button is released", [this] { release(); }, "1 1 on"},
      {"the pointer rests", [this] { pass(100); }, "1 1 on"},
      {"the pointer goes", [this] { point(outside), pass(); }, "0 0 off"},
  };
  for (const auto& [deed, act, expected] : story) {
    act();
    EXPECT_EQ(state(), expected) << deed;
  }
  EXPECT_EQ(clicks, 1);
}

TEST_F(OfficeControlsTest, what_the_mask_leaves_out_is_no_button) {
  enter();
  point(beside);
  button.mouseMove(MouseButton::left, beside);
  pass();
  EXPECT_EQ(state(), "0 0 off");
  press(beside);
  EXPECT_EQ(state(), "0 0 off");
  release();
  EXPECT_EQ(clicks, 0);
  for (const ButtonPoint at : {ButtonPoint{5, -1}, {5, 20}, {5, 60}, {-1, 5}}) {
    press(at);
    release();
  }
  EXPECT_EQ(clicks, 0) << "a frame's edge is the button's edge";
  button.setPicture(nullptr);
  press(beside);
  release();
  EXPECT_EQ(clicks, 1) << "without a strip everything counts";
}

TEST_F(OfficeControlsTest, another_active_window_takes_the_hover_look_away_at_the_next_tick) {
  enter();
  host.active = false;
  pass();
  EXPECT_EQ(state(), "0 0 off");
  int moves = 0;
  const Connection moved = button.MouseMove.connect([&moves](MouseButton, ButtonPoint) { ++moves; });
  button.mouseMove(MouseButton::left, onButton);
  EXPECT_EQ(state(), "0 0 off");
  EXPECT_EQ(moves, 0);
  press();
  release();
  EXPECT_EQ(clicks, 1) << "a press counts nevertheless";
}

TEST_F(OfficeControlsTest, a_test_of_the_active_window_that_fails_changes_nothing) {
  enter();
  host.fails = true;
  point(outside);
  pass(10);
  EXPECT_EQ(state(), "1 1 on");
  host.fails = false;
  pass();
  EXPECT_EQ(state(), "0 0 off");
}

TEST_F(OfficeControlsTest, a_button_with_a_strip_keeps_the_size_of_its_frame_and_one_without_any_size) {
  EXPECT_EQ(host.width, 20);
  EXPECT_EQ(host.height, 20);
  host.resize(70, 40);
  button.resized();
  EXPECT_EQ(host.width, 20);
  button.setPicture(nullptr);
  host.resize(70, 40);
  button.resized();
  EXPECT_EQ(host.width, 70);
}

TEST_F(OfficeControlsTest, the_looks_are_the_frames_of_the_strip_or_a_box_that_stands_out_and_sinks_in) {
  const char* const boxes[] = {"box 13619151 13619151;", "box 20 21;", "box 21 20;"};
  for (const int look : {0, 1, 2}) {
    if (look == 1) {
      enter();
    } else if (look == 2) {
      press();
    }
    button.setPicture(&strip);
    EXPECT_EQ(painted(), "frame " + std::to_string(look) + ";");
    button.setPicture(nullptr);
    EXPECT_EQ(painted(), "clear 14737632;" + std::string(boxes[look]));
  }
}

TEST_F(OfficeControlsTest, a_caption_is_trimmed_placed_by_its_alignment_and_grey_when_nothing_can_be_done) {
  constexpr int flags[] = {0x125, 0x121, 0x129, 0x124, 0x120, 0x128, 0x126, 0x122, 0x12A};
  button.setCaption("  &Close ");
  button.ForeColor.set(7);
  for (int align = 0; align < 9; ++align) {
    button.Align.set(align);
    EXPECT_EQ(painted(), "frame 0;&Close " + std::to_string(flags[align]) + " 7;");
  }
  for (const int align : {-1, 9, 1'000'000}) {
    button.Align.set(align);
    EXPECT_EQ(painted(), "frame 0;&Close " + std::to_string(0x128) + " 7;");
  }
  button.Enabled.set(false);
  EXPECT_EQ(painted(), "frame 0;&Close " + std::to_string(0x128) + " 17;");
  EXPECT_EQ(button.ForeColor.get(), 7u);
}

TEST_F(OfficeControlsTest, the_letter_behind_a_single_ampersand_is_the_access_key) {
  for (const auto& [caption, accessKey] : {std::pair("Close", ""),
                                           {"&Close", "C"},
                                           {"Cl&ose", "o"},
                                           {"This && that", ""},
                                           {"Save && E&xit", "x"},
                                           {"&", ""},
                                           {"", ""}}) {
    button.setCaption(caption);
    EXPECT_EQ(button.AccessKey(), accessKey) << caption;
  }
}

TEST(ZorbelLabel, the_frame_follows_the_size_of_the_control_and_a_control_without_width_changes_nothing) {
  ZorbelLabel label;
  label.resize(3000, 900);
  const auto shapes = label.Shpmain;
  EXPECT_EQ(shapes[0].Width, 198);
  EXPECT_EQ(shapes[2].Width, 198);
  EXPECT_EQ(label.lblmainWidth, 196);
  EXPECT_EQ(shapes[1].Width, 195);
  EXPECT_EQ(shapes[1].Height, 39);
  for (const float width : {0.0F, -15.0F}) {
    label.resize(width, 1500);
    EXPECT_EQ(label.Shpmain, shapes);
  }
}

TEST(ZorbelLabel, both_names_of_the_captions_colour_are_one_colour) {
  ZorbelLabel label;
  EXPECT_EQ(label.ForeColor(), 0x800000u);
  label.setLabelColor(7);
  EXPECT_EQ(label.ForeColor(), 7u);
  label.setForeColor(9);
  EXPECT_EQ(label.LabelColor(), 9u);
}

}  // namespace
}  // namespace vantrel

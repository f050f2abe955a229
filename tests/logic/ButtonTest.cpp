// The program's button: its colours, its look, its places, and what the mouse and the keys do to it.

#include <gtest/gtest.h>

#include "appearance/lvButtons_H.h"

namespace vantrel {
namespace {

// A window around a button, with the pointer where a test puts it.
struct FakeHost : ButtonHost {
  bool isUnderPointer() const override { return pointerIsHere; }
  void startTimer(int id, int milliseconds) override {
    log += "timer " + std::to_string(id) + " " + std::to_string(milliseconds) + ";";
  }
  void killTimer(int /*id*/) override { log += "kill;"; }
  void captureMouse(bool captured) override { log += captured ? "capture;" : "release;"; }
  void refresh() override { ++drawn; }
  void moveBy(int x, int y) override { log += "move " + std::to_string(x) + "," + std::to_string(y) + ";"; }
  void postKey(int keyCode, unsigned message) override {
    log += "post " + std::to_string(keyCode) + " " + std::to_string(message) + ";";
  }

  bool pointerIsHere = false;
  int drawn = 0;
  std::string log;
};

struct ButtonTest : testing::Test {
  ButtonTest() { listen(button, "click;"); }
  void listen(lvButtons_H& which, const std::string& word) {
    connections.push_back(which.Click.connect([this, word] { host.log += word; }));
  }
  std::string took() { return std::exchange(host.log, ""); }
  void press(lvButtons_H& which) {
    which.mouseDown({.Button = 1});
    which.mouseUp({.Button = 1});
    which.click();
  }
  ButtonState state() const { return visualState(button.look()); }

  FakeHost host;
  ButtonContainer container;
  SystemColors system{};
  lvButtons_H button{{host, container, system}};
  std::vector<Connection> connections;
};

struct SixPixels : ButtonMeasure {
  ButtonBox extentOf(const std::string& text, int width) const override {
    const int lines = text.find('\n') == std::string::npos ? 1 : 2;
    return {0, 0, std::min(width, 6 * static_cast<int>(text.size())), 12 * lines};
  }
};

TEST(ShiftColor, each_part_moves_by_itself_and_stays_a_part) {
  struct Case {
    Color color = 0;
    int delta = 0;
    Shift how{};
    Color result = 0;
  };
  const Case cases[] = {
      {0xFFFFFF, 10, {}, 0xFFFFFF},
      {0xFFFFFF, 10, {.retry = true}, 0xF6F6F5},
      {0, 0, {.retry = true}, 0x404040},
      {0, 0, {}, 0},
      {0x400000, 48, {.proportional = true}, 0x503030},
      {0x400000, -32, {.proportional = true}, 0x360000},
      {0x808080, 12, {}, 0x8D8D8C},
      {0x102030, 5, {.invert = true}, 0xEADACA},
      {0x0000FF, -300, {.retry = true}, 0xFFFFFF},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(shiftColor(each.color, each.delta, each.how), each.result) << std::hex << each.color << " " << each.delta;
  }
}

TEST(ButtonColors, each_style_works_its_colours_out_of_two) {
  const std::pair<int, std::array<Color, 4>> cases[] = {
      {1, {0x808080, 0x808080, 0x404040, 0xE0E0DF}},
      {2, {0xA1B1B0, 0x6C6160, 0x507070, 0xD6E0DF}},
      {3, {0x808080, 0x8D8D8C, 0x404040, 0xADADAB}},
      {7, {0xA0A09F, 0x717170, 0x5F5F5F, 0x919190}},
  };
  for (const auto& [style, wanted] : cases) {
    const ButtonColors made = buttonColors(style, 0x808080, 0x404040);
    EXPECT_EQ((std::array{made.faceColor, made.pressColor, made.hoverFace, made.valueColor}), wanted) << style;
  }
  SystemColors system{};
  system[15] = 0x123456;
  EXPECT_EQ(convertColor(0x8000000F, system), 0x123456U);
  EXPECT_EQ(convertColor(0x800000FF, system), 0U);
  EXPECT_EQ(convertColor(0xFF, system), 0xFFU);
}

TEST(ButtonGradient, its_steps_are_equal_and_it_never_reaches_the_second_colour) {
  const Gradient down = buttonGradient(3, 0x000000, 0x0000FF, 4, 1000);
  EXPECT_EQ(down.colors, (std::vector<Color>{0, 63, 127, 191}));
  EXPECT_FALSE(down.across);
  EXPECT_EQ(buttonGradient(2, 0, 0x0000FF, 2, 1000).colors, (std::vector<Color>{255, 127}));
  const Gradient wide = buttonGradient(1, 0, 0xFFFFFF, 300, 1000);
  EXPECT_EQ(wide.step, 2);
  EXPECT_EQ(wide.colors.size(), 150U);
  EXPECT_TRUE(buttonGradient(1, 0, 0, 0, 1000).colors.empty());
}

TEST(ButtonLook, what_the_mouse_and_the_value_say_makes_the_state) {
  using namespace buttonStatus;
  struct Case {
    unsigned status = 0;
    int mode = 0;
    bool value = false;
    bool held = false;
    bool focusRect = true;
    ButtonState state{};
  };
  const Case cases[] = {
      {0, 0, false, false, true, ButtonState::plain},
      {isDefault, 0, false, false, true, ButtonState::byDefault},
      {isDefault, 0, false, false, false, ButtonState::plain},
      {isDown | isOver, 0, false, true, true, ButtonState::pressed},
      {isDown, 0, false, true, true, ButtonState::plain},
      {isDown, 1, false, true, true, ButtonState::pressed},
      {isOver, 1, true, false, true, ButtonState::hover},
      {0, 2, true, false, true, ButtonState::pressed},
      {isDefault, 2, true, false, true, ButtonState::byDefault},
      {isDefault | isOver, 0, false, false, true, ButtonState::hover},
  };
  for (const Case& each : cases) {
    const ButtonLook look{.mode = each.mode,
                          .status = each.status,
                          .value = each.value,
                          .showFocusRect = each.focusRect,
                          .heldDown = each.held};
    EXPECT_EQ(visualState(look), each.state) << each.status << " " << each.mode << each.value << each.held;
  }
}

TEST(ButtonLook, the_soft_style_tells_its_state_by_two_rings_and_a_disabled_one_has_none) {
  const auto edges = [](unsigned status, bool enabled) {
    return buttonEdges({.style = 2, .status = status, .enabled = enabled}, 0x808080);
  };
  const EdgeColors plain = edges(0, true);
  EXPECT_EQ(plain[0], shiftColor(0x808080, -10, {.proportional = true}));
  EXPECT_EQ(plain[7], shiftColor(0x808080, -48, {.proportional = true}));
  EXPECT_EQ(plain[8], 0x733C00U);
  EXPECT_EQ(edges(buttonStatus::isDown | buttonStatus::isOver, true)[2], 0x808080U);
  EXPECT_EQ(edges(buttonStatus::isOver, true)[7], 0x0096E7U);
  EXPECT_EQ(edges(buttonStatus::isDefault, true)[5], 0xFFDFBFU);
  const EdgeColors disabled = edges(0, false);
  EXPECT_FALSE(disabled[0] || disabled[7]);
  EXPECT_EQ(disabled[8], shiftColor(0x808080, -84, {.proportional = true}));
  EXPECT_EQ(buttonEdges({.style = 1}, 0)[8], 0xFFFFFFU);
  EXPECT_EQ(buttonEdges({.style = 1, .mode = 1, .value = true}, 0)[8], 0x808080U);
  EXPECT_FALSE(buttonEdges({.style = 4}, 0)[8]);
  EXPECT_EQ(buttonEdges({.style = 4, .shape = 1}, 0x808080)[8], shiftColor(0x808080, -48));
}

TEST(ButtonLook, the_face_follows_the_pointer_unless_the_button_is_pressed_or_on) {
  ButtonLook look{.colors = {1, 2, 3, 4}, .gradientColor = 9};
  EXPECT_EQ(buttonFace(look).solid, 1U);
  look.inControl = true;
  look.status = buttonStatus::isOver;
  EXPECT_EQ(buttonFace(look).solid, 3U);
  look.status |= buttonStatus::isDown;
  EXPECT_EQ(buttonFace(look).solid, 2U);
  look.gradientMode = 3;
  EXPECT_EQ(buttonFace(look).gradientFrom, 1U) << "a press shows the face's own colour under a gradient";
  look.status = buttonStatus::isOver;
  look.gradientIsHover = false;
  EXPECT_FALSE(buttonFace(look).gradientFrom);
  look.mode = 1;
  look.value = true;
  EXPECT_EQ(buttonFace(look).solid, 4U);
  EXPECT_TRUE(buttonFace(look).isShaded);
  EXPECT_EQ(shadedLine(0x808080, 20, 20), shiftColor(0x808080, -25, {.proportional = true}));
}

TEST(ReadCaption, marks_become_keys_ampersands_and_line_ends) {
  struct Case {
    const char* caption = "";
    const char* text = "";
    char key = 0;
    int underlined = -1;
  };
  const Case cases[] = {{"&Go", "Go", 'G', 0},      {"A&&B", "A&B", 0, -1}, {"a||b", "a\r\nb", 0, -1},
                        {"x &&&y", "x &y", 'Y', 3}, {"end&", "end", 0, -1}, {"&a &b", "a b", 'A', 0},
                        {"|", "|", 0, -1},          {"", "", 0, -1}};
  for (const Case& each : cases) {
    const ButtonCaption read = readCaption(each.caption);
    EXPECT_EQ(read.text, each.text);
    EXPECT_EQ(read.accessKey, each.key) << each.caption;
    EXPECT_EQ(read.underlined, each.underlined) << each.caption;
  }
}

TEST(ButtonLayout, caption_and_picture_share_the_room_of_the_shape) {
  struct Case {
    int shape = 0, captionAlign = 2, pictureAlign = 0, pictureSize = 0;
    ButtonBox caption{};
    ButtonBox picture{};
  };
  const Case cases[] = {
      {0, 2, 0, 0, {38, 14, 24, 12}, {0, 0, 0, 0}},      {0, 0, 0, 16, {20, 14, 24, 12}, {4, 12, 16, 16}},
      {0, 1, 2, 16, {56, 14, 24, 12}, {80, 12, 16, 16}}, {0, 2, 1, 16, {46, 14, 24, 12}, {26, 12, 16, 16}},
      {0, 2, 3, 16, {30, 14, 24, 12}, {58, 12, 16, 16}}, {0, 2, 4, 16, {38, 23, 24, 12}, {42, 5, 16, 16}},
      {0, 2, 5, 16, {38, 5, 24, 12}, {42, 19, 16, 16}},  {0, 2, 0, 40, {38, 14, 24, 12}, {3, 3, 94, 34}},
      {0, 2, 0, 48, {38, 14, 24, 12}, {22, 6, 56, 28}},  {1, 0, 0, 0, {35, 14, 24, 12}, {0, 0, 0, 0}},
      {2, 1, 0, 0, {44, 14, 24, 12}, {0, 0, 0, 0}},
  };
  for (const Case& each : cases) {
    const ButtonParts parts{.outline = buttonOutline(each.shape, 100, 40),
                            .shape = each.shape,
                            .captionAlign = each.captionAlign,
                            .pictureAlign = each.pictureAlign,
                            .pictureSize = each.pictureSize,
                            .pictureWidth = each.pictureSize > 0 ? 64 : 0,
                            .pictureHeight = 32};
    const ButtonLayout layout = layOut(parts, "four", SixPixels());
    EXPECT_EQ(layout.caption, each.caption) << each.shape << each.captionAlign << each.pictureAlign << each.pictureSize
                                            << ": " << layout.caption.left << "," << layout.caption.top;
    EXPECT_EQ(layout.picture, each.picture)
        << each.pictureAlign << " " << each.pictureSize << ": " << layout.picture.left << "," << layout.picture.top;
  }
  const ButtonOutline narrow = buttonOutline(3, 20, 40);
  EXPECT_EQ(narrow.width, 50);
  EXPECT_EQ(narrow.shapeInset, 41);
  EXPECT_EQ(narrow.shapeRight, 9);
}

TEST_F(ButtonTest, values_out_of_range_leave_the_property_as_it_was) {
  button.setButtonStyle(2);
  button.setButtonStyle(8);
  button.setMode(3);
  button.setPictureSize(5);
  button.setGradientMode(-1);
  button.setHoverColorLocks(4);
  EXPECT_EQ(button.ButtonStyle(), 2);
  EXPECT_EQ(button.Mode() + button.PictureSize() + button.GradientMode() + button.HoverColorLocks(), 0);
  EXPECT_EQ(button.setValue(true), "");
  EXPECT_FALSE(button.Value());
  lvButtons_H onForm{{host, container, system, true}};
  EXPECT_EQ(onForm.setValue(true), "This property is not applicable for command button modes.");
  EXPECT_EQ(onForm.setCustomClick(1), "This property has no effect unless the Button Shape is a custom shape.");
  EXPECT_EQ(onForm.setMouseIcon("a.png"), "Select .ico Or .cur Files Only");
  EXPECT_NE(onForm.setButtonShape(7), "");
  onForm.setPicture({ButtonPicture::Kind::bitmap, 32, 32});
  EXPECT_EQ(onForm.setButtonShape(7), "");
  EXPECT_NE(onForm.setPicture({ButtonPicture::Kind::icon, 32, 32}), "");
  EXPECT_EQ(onForm.ButtonShape(), 0);
  onForm.setPictureAlign(4);
  EXPECT_NE(onForm.setCaptionAlign(0), "");
  EXPECT_EQ(onForm.CaptionAlign(), 2);
}

TEST_F(ButtonTest, hover_colours_follow_unless_they_are_locked) {
  button.setBackColor(5);
  button.setForeColor(6);
  button.setHoverBackColor(7);
  EXPECT_EQ(button.HoverBackColor(), 5U);
  EXPECT_EQ(button.HoverForeColor(), 6U);
  button.setHoverColorLocks(1);
  button.setHoverBackColor(7);
  button.setHoverForeColor(8);
  button.setBackColor(9);
  EXPECT_EQ(button.HoverBackColor(), 7U);
  EXPECT_EQ(button.HoverForeColor(), 6U);
}

TEST_F(ButtonTest, a_bag_keeps_a_button_and_an_empty_one_gives_the_defaults) {
  button.setButtonStyle(2);
  button.setCaption("&Go");
  button.setMode(1);
  button.setValue(true);
  button.setPictureSize(2);
  button.setBackColor(0x80000005);
  const PropertyBag bag = button.WriteProperties();
  EXPECT_EQ(bag.at("BackStyle") + bag.at("ImgSize") + bag.at("cBack"), "232-2147483643");
  lvButtons_H other{{host, container, system}};
  other.ReadProperties(bag);
  EXPECT_EQ(other.WriteProperties(), bag);
  other.ReadProperties({{"Mode", "x"}, {"cBack", "99999999999999999999999"}});
  EXPECT_EQ(other.Caption(), "");
  EXPECT_EQ(other.Mode(), 0);
  EXPECT_EQ(other.ForeColor(), 0x80000012U);
}

TEST_F(ButtonTest, a_press_is_a_click_of_the_left_button_only) {
  press(button);
  EXPECT_EQ(took(), "capture;release;click;");
  button.mouseDown({.Button = 2});
  button.mouseUp({.Button = 2});
  button.click();
  EXPECT_EQ(took(), "");
  button.dblClick({.Button = 1});
  EXPECT_EQ(button.lastButton(), -1);
  EXPECT_TRUE(button.heldDown());
  button.click();
  EXPECT_EQ(took(), "capture;");
}

TEST_F(ButtonTest, hover_begins_under_the_pointer_and_ends_within_a_tick) {
  std::string over;
  connections.push_back(button.MouseOnButton.connect([&over](bool isOver) { over += isOver ? "on " : "off "; }));
  button.mouseMove({});
  EXPECT_EQ(took() + over, "");
  host.pointerIsHere = true;
  button.mouseMove({});
  button.mouseMove({});
  EXPECT_EQ(took(), "timer 237 50;");
  EXPECT_EQ(state(), ButtonState::hover);
  button.hoverTick();
  host.pointerIsHere = false;
  button.hoverTick();
  EXPECT_EQ(took() + over, "kill;on off ");
  EXPECT_EQ(state(), ButtonState::plain);
  EXPECT_FALSE(button.inControl());
}

TEST_F(ButtonTest, space_presses_arrows_go_to_the_container_and_access_keys_click) {
  EXPECT_TRUE(button.keyDown(39, 0));
  EXPECT_TRUE(button.keyUp(39, 0));
  EXPECT_EQ(took(), "post 39 5046273;");
  const int before = host.drawn;
  EXPECT_FALSE(button.keyDown(32, 0));
  EXPECT_EQ(host.drawn, before + 1);
  EXPECT_FALSE(button.look().has(buttonStatus::isOver)) << "the pointer is elsewhere";
  EXPECT_FALSE(button.keyUp(32, 0));
  EXPECT_EQ(took(), "click;");
  EXPECT_TRUE(button.keyUp(16, 0));
  button.accessKeyPress('G');
  EXPECT_EQ(took(), "click;");
  button.setMode(1);
  button.accessKeyPress(13);
  button.accessKeyPress(27);
  EXPECT_EQ(took(), "");
  button.keyDown(32, 0);
  EXPECT_TRUE(button.keyUp(32, 0));
  EXPECT_EQ(took(), "click;");
  EXPECT_TRUE(button.Value());
}

TEST_F(ButtonTest, one_option_button_of_a_container_is_on) {
  ButtonContainer elsewhere;
  lvButtons_H second{{host, container, system}};
  lvButtons_H third{{host, elsewhere, system}};
  listen(second, "second;");
  for (lvButtons_H* const each : {&button, &second, &third}) {
    each->setMode(2);
  }
  third.setValue(true);
  EXPECT_EQ(std::get<int>(container.properties.at("lv_OptCount")), 2);
  EXPECT_EQ(std::get<lvButtons_H*>(container.properties.at("2lv_Obj")), &second);
  button.gotFocus();
  EXPECT_EQ(took(), "click;") << "none was on";
  second.gotFocus();
  EXPECT_EQ(took(), "");
  press(second);
  EXPECT_EQ(took(), "capture;release;second;");
  EXPECT_FALSE(button.Value());
  EXPECT_TRUE(third.Value());
  press(second);
  EXPECT_EQ(took(), "capture;release;") << "it was on already";
  button.keyUp(40, 0);
  EXPECT_EQ(took(), "click;");
  EXPECT_FALSE(second.Value());
  button.setMode(0);
  EXPECT_FALSE(button.Value());
  EXPECT_EQ(std::get<lvButtons_H*>(container.properties.at("1lv_Obj")), &second);
  second.setMode(1);
  EXPECT_TRUE(container.properties.empty());
}

TEST_F(ButtonTest, a_custom_shape_moves_with_its_press_and_back) {
  button.setPicture({ButtonPicture::Kind::bitmap, 9, 9});
  button.setButtonShape(8);
  button.setCustomClick(4);
  host.pointerIsHere = true;
  button.mouseMove({});
  took();
  press(button);
  EXPECT_EQ(took(), "move 1,1;capture;release;move -1,-1;click;");
}

TEST_F(ButtonTest, held_off_drawing_comes_in_one) {
  const int before = host.drawn;
  button.DelayDrawing(true);
  button.setCaption("a");
  button.setBackColor(1);
  EXPECT_EQ(host.drawn, before);
  button.DelayDrawing(false);
  EXPECT_EQ(host.drawn, before + 1);
}

}  // namespace
}  // namespace vantrel

// The colours of the main window: what a start paints and writes, and what the window of the colours does with one.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/modSGrid.h"
#include "platform/Failure.h"
#include "support/World.h"

namespace vantrel {
namespace {

constexpr Color navy = 0x400000;
constexpr Color painted = 0x123456;

std::string stored(const World& world, const std::string& name) {
  return world.reg.GetRegValue(RegistryRoot::currentUser, colorsKey, name);
}

void store(World& world, const std::string& name, const std::string& value) {
  world.registry.write(RegistryRoot::currentUser, colorsKey, name, RegistryType::text, value);
}

int failureOf(const std::string& text) {
  try {
    parseColor(text);
  } catch (const Failure& failure) {
    return failure.number;
  }
  return 0;
}

TEST(ColorText, both_forms_are_read_and_a_system_colour_has_a_sign_or_none) {
  struct Case {
    const char* text = "";
    Color color = 0;
  };
  for (const auto& [text, color] :
       {Case{"&H400000", navy}, Case{"&h400000", navy}, Case{"4194304", navy}, Case{" 255 ", 255},
        Case{"&HF7F7F7", 0xF7F7F7}, Case{"&HfF", 255}, Case{"0", 0}, Case{"&H80000008", 0x80000008},
        Case{"-2147483640", 0x80000008}, Case{"2147483656", 0x80000008}, Case{"16777215", colors::white}}) {
    EXPECT_EQ(parseColor(text), color) << text;
  }
}

TEST(ColorText, what_is_no_colour_is_a_failure) {
  struct Case {
    const char* text = "";
    int failure = 0;
  };
  for (const auto& [text, failure] :
       {Case{"", 13}, Case{"&H", 13}, Case{"&HG0", 13}, Case{"&H40 00", 13}, Case{"&H-1", 13}, Case{"red", 13},
        Case{"#FF0000", 13}, Case{"FF0000", 13}, Case{"1e3", 13}, Case{"&H123456789", 6}, Case{"4294967296", 6},
        Case{"-2147483649", 6}, Case{"16777216", 6}, Case{"&H7FFFFFFF", 6}}) {
    EXPECT_EQ(failureOf(text), failure) << text;
  }
}

TEST(ColorText, a_colour_is_written_as_a_signed_number) {
  EXPECT_EQ(colorText(255) + " " + colorText(0xFF0000) + " " + colorText(0x80000008), "255 16711680 -2147483640");
}

TEST(Colors, a_first_start_writes_all_five_and_paints_them) {
  World world;
  world.colorTheme.loadColors();
  EXPECT_EQ(stored(world, "backColor"), "&H400000");
  EXPECT_EQ(stored(world, "texts"), "&H400000");
  EXPECT_EQ(stored(world, "texts2"), "&HF7F7F7");
  EXPECT_EQ(stored(world, "shapes"), "&HE0E0E0");
  EXPECT_EQ(stored(world, "shapesbrdr"), "&H80000008");
  const frmMain& window = world.mainWindow;
  EXPECT_EQ(window.backColor.get(), navy);
  EXPECT_EQ(window.lblText[1].foreColor.get(), navy);
  EXPECT_EQ(window.lblText2[1].foreColor.get(), 0xF7F7F7u);
  EXPECT_EQ(window.shpInfo[1].backColor.get(), 0xE0E0E0u);
  EXPECT_EQ(window.Line1.borderColor.get(), 0x80000008u);
}

TEST(Colors, a_start_paints_what_is_stored_in_either_form_and_leaves_it_as_it_is) {
  World world;
  store(world, "backColor", "255");
  store(world, "texts2", "&HFF");
  store(world, "shapes", "no colour");
  world.colorTheme.loadColors();
  EXPECT_EQ(world.mainWindow.backColor.get(), colors::red);
  EXPECT_EQ(world.mainWindow.lblText2[1].foreColor.get(), colors::red);
  EXPECT_EQ(world.mainWindow.shpInfo[1].backColor.get(), colors::systemFace) << "not painted";
  EXPECT_EQ(world.mainWindow.shpInfo[1].borderColor.get(), 0x80000008u) << "painted behind the one that failed";
  EXPECT_EQ(stored(world, "backColor") + stored(world, "texts2") + stored(world, "shapes"), "255&HFFno colour");
}

TEST(Colors, the_buttons_show_the_second_text_colour_after_a_start_and_the_first_once_it_is_changed) {
  World world;
  world.colorTheme.loadColors();
  EXPECT_EQ(world.mainWindow.cmdMenu[7].foreColor.get(), 0xF7F7F7u);
  world.colorTheme.paintTextColor("255");
  EXPECT_EQ(world.mainWindow.cmdMenu[7].foreColor.get(), colors::red);
}

TEST(Colors, the_list_keeps_its_background_when_its_columns_are_made_behind_the_colours) {
  World world;
  world.colorTheme.loadColors();
  SetupGrid(world.mainWindow.grdServers);
  EXPECT_EQ(world.mainWindow.grdServers.look().background, navy);
  EXPECT_EQ(world.mainWindow.grdServers.look().rowHeight, 19);
}

// Every colour of the main window by its name.
using Shown = std::map<std::string, Color>;

template <class Array>
void showAll(Shown& shown, const std::string& name, const Array& controls, const std::string& property) {
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const auto& control = controls[i];
    const std::string key = name + "(" + std::to_string(i) + ")." + property;
    if constexpr (requires { control.borderColor; }) {
      shown[key] = property == "back" ? control.backColor.get() : control.borderColor.get();
    } else {
      shown[key] = property == "back" ? control.backColor.get() : control.foreColor.get();
    }
  }
}

Shown allColors(const frmMain& w) {
  Shown all = {{"window", w.backColor.get()},
               {"PicBG", w.PicBG.backColor.get()},
               {"picFaves", w.picFaves.backColor.get()},
               {"picFaves2", w.picFaves2.backColor.get()},
               {"PicAbout", w.PicAbout.backColor.get()},
               {"picSettings", w.picSettings.backColor.get()},
               {"picRef", w.picRef.backColor.get()},
               {"picLaunch", w.picLaunch.backColor.get()},
               {"picScore", w.picScore.backColor.get()},
               {"picTools", w.picTools.backColor.get()},
               {"PicServers", w.PicServers.backColor.get()},
               {"PicChat", w.PicChat.backColor.get()},
               {"picRefresh", w.picRefresh.backColor.get()},
               {"picJoin", w.picJoin.backColor.get()},
               {"chkSplash.back", w.chkSplash.backColor.get()},
               {"chkSplash.fore", w.chkSplash.foreColor.get()},
               {"chkOldSplash.back", w.chkOldSplash.backColor.get()},
               {"chkOldSplash.fore", w.chkOldSplash.foreColor.get()},
               {"lblPlayers", w.lblPlayers.foreColor.get()},
               {"lblData", w.lblData.foreColor.get()},
               {"lblCount", w.lblCount.foreColor.get()},
               {"lblVer", w.lblVer.foreColor.get()},
               {"Line1", w.Line1.borderColor.get()},
               {"grid", w.grdServers.look().background},
               {"grid rows", w.grdServers.look().alternateRow},
               {"grid text", w.grdServers.look().text},
               {"faves", w.myFaves1.look.get().background},
               {"faves selection", w.myFaves1.look.get().selection},
               {"faves name", w.myFaves1.look.get().name},
               {"faves hostname", w.myFaves1.look.get().hostname},
               {"faves gametype", w.myFaves1.look.get().gametype}};
  showAll(all, "lblText", w.lblText, "fore");
  showAll(all, "lblText", w.lblText, "back");
  showAll(all, "lblText2", w.lblText2, "fore");
  showAll(all, "lblText2", w.lblText2, "back");
  showAll(all, "chkOptions", w.chkOptions, "fore");
  showAll(all, "chkOptions", w.chkOptions, "back");
  showAll(all, "shpInfo", w.shpInfo, "back");
  showAll(all, "shpInfo", w.shpInfo, "border");
  showAll(all, "cmdMenu", w.cmdMenu, "fore");
  showAll(all, "cmdMenu", w.cmdMenu, "back");
  for (std::size_t i = 0; i < w.cmdMenu.size(); ++i) {
    all["cmdMenu(" + std::to_string(i) + ").gradient"] = w.cmdMenu[i].gradientColor.get();
  }
  int number = 1;
  for (const ListView* const list : {&w.ListView1, &w.ListView2, &w.ListView3, &w.ListView4, &w.ListView5}) {
    all["ListView" + std::to_string(number) + ".fore"] = list->foreColor.get();
    all["ListView" + std::to_string(number++) + ".back"] = list->backColor.get();
  }
  return all;
}

// The names in a text, where "a(1-3).x" stands for three of them.
std::set<std::string> expanded(const std::string& names) {
  std::set<std::string> all;
  for (const std::string& name : split(names, ';')) {
    const std::size_t dash = name.find('-');
    if (dash == std::string::npos) {
      all.insert(name);
      continue;
    }
    const std::size_t open = name.find('(');
    const std::size_t close = name.find(')');
    for (int i = std::stoi(name.substr(open + 1)); i <= std::stoi(name.substr(dash + 1)); ++i) {
      all.insert(name.substr(0, open + 1) + std::to_string(i) + name.substr(close));
    }
  }
  return all;
}

TEST(Colors, each_routine_paints_what_plays_its_role_and_nothing_else) {
  struct Case {
    void (modColors::*paint)(const std::string&) = nullptr;
    const char* targets = "";
  };
  const Case cases[] = {
      {&modColors::paintBackColor,
       "window;PicBG;picFaves;picFaves2;PicAbout;picSettings;picRef;picLaunch;picScore;picTools;PicServers;PicChat;"
       "chkSplash.back;chkOldSplash.back;grid;grid rows;faves;cmdMenu(0-42).back"},
      {&modColors::paintTextColor,
       "lblText2(0).fore;lblText(1-47).fore;chkOptions(0-6).fore;lblPlayers;ListView1.fore;ListView2.fore;"
       "ListView3.fore;ListView4.fore;ListView5.fore;cmdMenu(0-42).fore"},
      {&modColors::paintTextColor2,
       "lblText2(1-11).fore;lblText(26-32).fore;chkSplash.fore;chkOldSplash.fore;lblData;faves name;faves hostname;"
       "faves gametype;cmdMenu(0-42).fore"},
      {&modColors::paintLabelColor,
       "shpInfo(0-11).back;chkOptions(0-6).back;ListView1.back;ListView2.back;ListView3.back;ListView4.back;"
       "ListView5.back;picRefresh;picJoin;faves selection;cmdMenu(0-42).gradient"},
      {&modColors::paintLabelBorder, "shpInfo(0-11).border;Line1"},
  };
  for (const auto& [paint, targets] : cases) {
    World world;
    const Shown before = allColors(world.mainWindow);
    (world.colorTheme.*paint)("&H123456");
    std::set<std::string> changed;
    for (const auto& [name, color] : allColors(world.mainWindow)) {
      if (color != before.at(name)) {
        EXPECT_EQ(color, painted) << name;
        changed.insert(name);
      }
    }
    EXPECT_EQ(changed, expanded(targets));
    EXPECT_TRUE(world.registry.log.empty()) << "stored by " << targets;
  }
}

struct Editor : ::testing::Test {
  Editor() {
    world.colorTheme.loadColors();
    world.mainWindow.colorsClicked.fire();
  }

  void choose(int role) {
    editor.lstColor.select(role);
    editor.roleClicked.fire();
  }
  // What the boxes show: "255,0,0 FF0000 255".
  std::string boxes() const {
    return editor.R.text.get() + "," + editor.G.text.get() + "," + editor.B.text.get() + " " +
           editor.HEXvalue.text.get() + " " + editor.LongValue.text.get();
  }
  std::string views() const {
    std::string all;
    for (const Label& label : editor.ViewAs) {
      all += label.caption.get() + " ";
    }
    return all + (editor.R.visible.get() && editor.G.visible.get() && editor.B.visible.get() ? "rgb " : "") +
           (editor.HEXvalue.visible.get() ? "hex " : "") + (editor.LongValue.visible.get() ? "long " : "");
  }

  World world;
  frmColors& editor = world.colorsWindow;
};

TEST_F(Editor, opens_with_no_role_and_black_in_all_boxes_and_begins_anew_each_time) {
  EXPECT_TRUE(editor.visible.get());
  EXPECT_EQ(editor.lstColor.selected(), -1);
  EXPECT_EQ(boxes(), "0,0,0 000000 0");
  editor.miniPickerPressed.fire(7);
  choose(2);
  editor.pressed.fire(ColorCommand::exit);
  EXPECT_FALSE(editor.visible.get());
  world.mainWindow.colorsClicked.fire();
  EXPECT_EQ(editor.lstColor.selected(), -1);
  EXPECT_EQ(boxes(), "0,0,0 000000 0");
}

TEST_F(Editor, a_colour_typed_or_picked_in_one_form_is_shown_in_the_others) {
  struct Case {
    const char* what = "";
    std::function<void(frmColors&)> act;
    Color color = 0;
    const char* boxes = "";
  };
  const Case cases[] = {
      {"red typed", [](frmColors& w) { w.R.text.set("255"); }, 0xFF, "255,0,0 FF0000 255"},
      {"blue typed", [](frmColors& w) { w.B.text.set("255"); }, 0xFF0000, "0,0,255 0000FF 16711680"},
      {"padded", [](frmColors& w) { w.G.text.set("10"); }, 0x0A00, "0,10,0 000A00 2560"},
      {"too large", [](frmColors& w) { w.R.text.set("300"); }, 0xFF, "300,0,0 FF0000 255"},
      {"no number", [](frmColors& w) { w.R.text.set("x"); }, 0, "x,0,0 000000 0"},
      {"below nought", [](frmColors& w) { w.R.text.set("-1"); }, 0, "-1,0,0 000000 0"},
      {"number typed", [](frmColors& w) { w.LongValue.text.set("660510"); }, 0xA141E, "30,20,10 1E140A 660510"},
      {"no number typed", [](frmColors& w) { w.LongValue.text.set("x"); }, 0, "0,0,0 000000 x"},
      {"system", [](frmColors& w) { w.LongValue.text.set("2147483656"); }, 0x80000008, "8,0,0 080000 2147483656"},
      {"hex typed", [](frmColors& w) { w.HEXvalue.text.set("FF0000"); }, 0, "0,0,0 FF0000 0"},
      {"chart", [](frmColors& w) { w.pickerPressed.fire(0x0180FF); }, 0x0180FF, "255,128,1 FF8001 98559"},
      {"swatch", [](frmColors& w) { w.miniPickerPressed.fire(1); }, 0xC0C0FF, "255,192,192 FFC0C0 12632319"},
      {"last swatch", [](frmColors& w) { w.miniPickerPressed.fire(39); }, 0x800080, "128,0,128 800080 8388736"},
  };
  for (const auto& [what, act, color, shown] : cases) {
    World fresh;
    fresh.mainWindow.colorsClicked.fire();
    act(fresh.colorsWindow);
    EXPECT_EQ(fresh.colorsWindow.CurColor.get(), color) << what;
    frmColors& w = fresh.colorsWindow;
    EXPECT_EQ(w.R.text.get() + "," + w.G.text.get() + "," + w.B.text.get() + " " + w.HEXvalue.text.get() + " " +
                  w.LongValue.text.get(),
              shown)
        << what;
  }
}

TEST_F(Editor, a_role_shows_what_the_window_shows_and_leaves_the_boxes_alone) {
  world.mainWindow.backColor.set(1);
  world.mainWindow.lblText[1].foreColor.set(2);
  world.mainWindow.lblText2[1].foreColor.set(3);
  world.mainWindow.shpInfo[1].backColor.set(4);
  world.mainWindow.shpInfo[1].borderColor.set(5);
  for (int role = 0; role < editor.lstColor.count(); ++role) {
    choose(role);
    EXPECT_EQ(editor.CurColor.get(), static_cast<Color>(role + 1)) << editor.lstColor.line(role);
    EXPECT_EQ(boxes(), "0,0,0 000000 0");
  }
}

TEST_F(Editor, nothing_is_colourised_before_a_role_is_selected) {
  editor.miniPickerPressed.fire(7);
  editor.pressed.fire(ColorCommand::colorize);
  EXPECT_EQ(world.notices.told(), "Select something to colorize first!");
  EXPECT_EQ(world.mainWindow.backColor.get(), navy);
  EXPECT_EQ(stored(world, "backColor"), "&H400000");
}

TEST_F(Editor, a_red_background_is_painted_at_once_kept_as_a_number_and_there_at_the_next_start) {
  choose(0);
  editor.R.text.set("255");
  EXPECT_EQ(world.mainWindow.backColor.get(), navy) << "before it is colourised";
  editor.pressed.fire(ColorCommand::colorize);
  EXPECT_EQ(world.mainWindow.backColor.get(), colors::red);
  EXPECT_EQ(stored(world, "backColor"), "255");
  World next;
  next.registry = world.registry;
  next.colorTheme.loadColors();
  EXPECT_EQ(next.mainWindow.PicBG.backColor.get(), colors::red);
}

TEST_F(Editor, each_role_is_kept_under_its_own_name_and_a_system_colour_with_its_sign) {
  const char* const names[] = {"backColor", "texts", "texts2", "shapes", "shapesbrdr"};
  editor.LongValue.text.set("-2147483633");
  for (int role = 0; role < editor.lstColor.count(); ++role) {
    editor.lstColor.select(role);
    editor.pressed.fire(ColorCommand::colorize);
    EXPECT_EQ(stored(world, names[role]), "-2147483633") << editor.lstColor.line(role);
  }
  EXPECT_EQ(world.notices.told(), "");
}

TEST_F(Editor, a_view_brackets_its_label_and_shows_its_boxes) {
  EXPECT_EQ(views(), "[RGB] HEX Long rgb hex ");
  editor.viewAsClicked.fire(1);
  EXPECT_EQ(views(), "RGB [HEX] Long hex ");
  editor.viewAsClicked.fire(2);
  EXPECT_EQ(views(), "RGB HEX [Long] hex long ");
  editor.viewAsClicked.fire(0);
  EXPECT_EQ(views(), "[RGB] HEX Long rgb hex ");
}

TEST_F(Editor, a_view_label_is_grey_while_it_is_pressed) {
  editor.viewAsPressed.fire(1);
  EXPECT_EQ(editor.ViewAs[1].foreColor.get(), 0x808080u);
  EXPECT_EQ(editor.ViewAs[0].foreColor.get(), colors::black);
  editor.viewAsReleased.fire(1);
  EXPECT_EQ(editor.ViewAs[1].foreColor.get(), colors::black);
}

TEST_F(Editor, dark_and_light_text_go_to_all_captions_but_the_first_and_are_not_kept) {
  const Color first = world.mainWindow.lblText[0].foreColor.get();
  for (const auto& [command, color] :
       {std::pair(ColorCommand::darkText, colors::black), std::pair(ColorCommand::lightText, colors::white)}) {
    editor.pressed.fire(command);
    for (std::size_t i = 1; i < world.mainWindow.lblText.size(); ++i) {
      EXPECT_EQ(world.mainWindow.lblText[i].foreColor.get(), color) << i;
    }
  }
  EXPECT_EQ(world.mainWindow.lblText[0].foreColor.get(), first);
  EXPECT_EQ(stored(world, "texts"), "&H400000");
}

TEST_F(Editor, the_clipboard_takes_the_colour_as_the_boxes_show_it) {
  editor.miniPickerPressed.fire(7);
  editor.pressed.fire(ColorCommand::copyRgb);
  EXPECT_EQ(world.shell.clipboard, "255, 0, 0");
  editor.pressed.fire(ColorCommand::copyHex);
  EXPECT_EQ(world.shell.clipboard, "FF0000");
  editor.pressed.fire(ColorCommand::copyLong);
  EXPECT_EQ(world.shell.clipboard, "255");
}

}  // namespace
}  // namespace vantrel

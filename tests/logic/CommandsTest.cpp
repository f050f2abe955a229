// The commands by their numbers: what each does first, how the pages replace one another, how a failure is told, and
// the rules of the input boxes.

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

// What is seen: a letter each, in this order.
constexpr const char* partNames = "title,4,2,1,5,3,score,grid,bg,42,settings,ref,about,faves,faves2,tools";

std::string seen(const frmMain& w) {
  std::string parts;
  for (const bool shown :
       {w.lblText2[0].visible.get(), w.ListView4.visible.get(), w.ListView2.visible.get(), w.ListView1.visible.get(),
        w.ListView5.visible.get(), w.ListView3.visible.get(), w.picScore.visible.get(), w.grdServers.visible.get(),
        w.PicBG.visible.get(), w.cmdMenu[42].visible.get(), w.picSettings.visible.get(), w.picRef.visible.get(),
        w.PicAbout.visible.get(), w.picFaves.visible.get(), w.picFaves2.visible.get(), w.picTools.visible.get()}) {
    parts += shown ? 'y' : 'n';
  }
  return parts;
}

struct Page {
  int number;
  const char* parts;  // "-" is left as it was
  const char* title;
};

constexpr Page pages[] = {
    {1, "yynnnyy-ynnnnnnn", "Current Game"},
    {2, "ynynnyynyynnnnnn", "Players"},
    {3, "ynnynyynynnnnnnn", "Misc. Server Information"},
    {4, "ynnnyyynynnnnnnn", "Vehicles"},
    {5, "nnnnnnnnynyynnnn", ""},
    {6, "nnnnnnnnynnyyyyn", nullptr},
    {7, "nnnnnnnnynnynnny", nullptr},
    {9, "nnnnnnnynnnnnnnn", nullptr},
    {16, "yynnnyy-ynnnynnn", "Current Game"},
};

std::string after(const Page& page, const std::string& before) {
  std::string parts = page.parts;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    parts[i] = parts[i] == '-' ? before[i] : parts[i];
  }
  return parts;
}

TEST(Pages, every_page_command_after_every_other_shows_its_own_panels) {
  for (const Page& first : pages) {
    World world;
    world.commands.clickIt(9);
    for (const Page& second : pages) {
      world.commands.clickIt(first.number);
      const std::string before = seen(world.mainWindow);
      world.mainWindow.cmbGameType.text.set("CTF");
      world.commands.clickIt(second.number);
      EXPECT_EQ(seen(world.mainWindow), after(second, before))
          << partNames << ": " << first.number << " and then " << second.number;
      if (second.title != nullptr) {
        EXPECT_EQ(world.mainWindow.lblText2[0].caption.get(), second.title) << second.number;
      }
      const bool resets = second.number == 6 || second.number == 9;
      EXPECT_EQ(world.mainWindow.cmbGameType.text.get(), resets ? "Undefined" : "CTF") << second.number;
    }
  }
}

TEST(Pages, a_detail_page_is_opened_by_its_name_and_the_players_by_any_other) {
  World world;
  for (const auto& [name, title] :
       std::vector<std::pair<std::string, std::string>>{{"Current Game", "Current Game"},
                                                        {"Misc.", "Misc. Server Information"},
                                                        {"Vehicles", "Vehicles"},
                                                        {"Players", "Players"},
                                                        {"vehicles", "Players"},
                                                        {"", "Players"}}) {
    world.pages.showTab(name);
    EXPECT_EQ(world.mainWindow.lblText2[0].caption.get(), title) << name;
  }
}

TEST(Commands, every_command_hides_the_hint_about_buddies_and_leaving_the_detail_pages_ends_auto_refresh) {
  for (int number = 0; number <= 42; ++number) {
    World world;
    world.settings.setParameter("AutoRefresh", "1");
    world.mainWindow.tmrRefresh.switchOn();
    world.mainWindow.cmdMenu[42].visible.set(true);
    world.dialogs.answers = {std::nullopt};
    world.commands.clickIt(number);
    EXPECT_EQ(world.mainWindow.cmdMenu[42].visible.get(), number == 2) << number;
    const bool ends = (number >= 5 && number <= 9) || number == 31;
    EXPECT_EQ(world.mainWindow.tmrRefresh.enabled(), !ends) << number;
    EXPECT_EQ(world.setting("AutoRefresh"), ends ? "0" : "1") << number;
  }
}

TEST(Commands, a_failure_ends_the_command_and_is_reported_but_997_goes_on) {
  World world;
  std::string done;
  const auto run = [&](Failure failure) {
    done.clear();
    world.notices.log.clear();
    world.commands.add(20, {[&, failure] {
                              done += "first ";
                              throw failure;
                            },
                            [&] { done += "second"; }});
    world.commands.clickIt(20);
    return done + "|" + (world.notices.log.empty() ? "" : world.notices.log.front());
  };
  EXPECT_EQ(run({13, "Type mismatch"}), "first |Error # 13 Type mismatch");
  EXPECT_EQ(run({997, "Overlapped I/O operation is in progress"}), "first second|");
  EXPECT_EQ(run({1, "nothing to tell"}), "first |");
  world.commands.add(20, {[] { throw CommandEnded(); }, [&] { done = "went on"; }});
  world.commands.clickIt(20);
  EXPECT_EQ(done, "first ");
}

TEST(Commands, a_connection_that_was_reset_releases_auto_join_and_empties_the_view) {
  World world;
  world.commands.clickIt(10);
  world.mainWindow.lblText[6].caption.set("bloodgulch");
  world.mainWindow.lblData.caption.set("A server");
  world.mainWindow.ListView2.addRow("A player");
  world.commands.add(20, [] { throw failures::connectionReset(); });
  world.commands.clickIt(20);
  EXPECT_EQ(world.notices.log.back(), "The connection with the server was reset by remote host.");
  EXPECT_TRUE(world.notices.log[world.notices.log.size() - 2].starts_with("Error # 10054 "));
  EXPECT_EQ(world.mainWindow.cmdMenu[10].value.get(), 0);
  EXPECT_EQ(world.setting("AutoJoin"), "1") << "what the user chose is kept";
  EXPECT_EQ(world.mainWindow.lblText[6].caption.get() + world.mainWindow.lblData.caption.get(), "[...]Vantrel CE");
  EXPECT_EQ(world.mainWindow.ListView2.rowCount(), 0);
  EXPECT_EQ(world.mainWindow.title.get(), "Zorbel's Vantrel CE - Version 1.2.3");
}

TEST(Commands, the_server_is_forgotten_with_all_that_was_shown_of_it) {
  World world;
  frmMain& window = world.mainWindow;
  for (const std::size_t label : {4u, 6u, 7u, 8u, 9u, 10u}) {
    window.lblText[label].caption.set("shown");
  }
  window.txtIP.text.set("192.0.2.1:2302");
  window.txtPing.text.set("50 ms");
  world.commands.clickIt(11);
  EXPECT_EQ(window.txtIP.text.get() + window.txtPort.text.get() + window.txtPing.text.get(), "");
  EXPECT_EQ(window.txtPing.foreColor.get(), colors::green);
  EXPECT_FALSE(window.cmdMenu[18].enabled.get());
  for (const std::size_t label : {4u, 6u, 7u, 8u, 9u, 10u}) {
    EXPECT_EQ(window.lblText[label].caption.get(), "[...]") << label;
  }
  world.detail.ClearDetail();
  EXPECT_EQ(window.title.get(), "Zorbel's Vantrel - Version 1.2.3");
  world.commands.clickIt(42);
  EXPECT_EQ(
      world.notices.log.back(),
      "Right click player names to add them to your\r\nto your buddy list. Vantrel CE can then find them online.");
}

TEST(InputBoxes, an_address_with_its_port_fills_both_boxes) {
  World world;
  frmMain& window = world.mainWindow;
  for (const auto& [typed, ip, port] : std::vector<std::array<std::string, 3>>{{"192.0.2.1:2302", "192.0.2.1", "2302"},
                                                                               {"a:b:c", "a", "b"},
                                                                               {":", "", ""},
                                                                               {"192.0.2.9", "192.0.2.9", ""}}) {
    for (auto [address, box] :
         {std::pair(&window.txtIP, &window.txtPort), std::pair(&window.txtIP2, &window.txtPort2)}) {
      address->text.set(typed);
      EXPECT_EQ(address->text.get() + "|" + box->text.get(), ip + "|" + port) << typed;
    }
  }
}

TEST(InputBoxes, who_types_the_colon_goes_on_in_the_box_of_the_port) {
  World world;
  int asked = 0;
  const Connection asking = world.mainWindow.txtPort.typingGoesOn.connect([&asked] { ++asked; });
  world.mainWindow.txtIP.text.set("192.0.2.1:2302");
  EXPECT_EQ(asked, 0);
  world.mainWindow.txtIP.text.set("192.0.2.1:");
  EXPECT_EQ(asked, 0) << "a favorite without a port was picked";
  KeyPress colon{':'};
  world.mainWindow.txtIP.keyPress.fire(colon);
  world.mainWindow.txtIP.text.set("192.0.2.1:");
  EXPECT_EQ(asked, 1);
}

TEST(InputBoxes, a_key_that_does_not_belong_there_is_swallowed_with_a_balloon) {
  World world;
  const auto press = [&](TextBox& box, int code) {
    KeyPress key{code};
    world.notices.log.clear();
    box.keyPress.fire(key);
    return key.code == code ? "passes" : world.notices.log.empty() ? "swallowed" : world.notices.log.front();
  };
  frmMain& window = world.mainWindow;
  for (const char passes : {'0', '9', '\t', '\b'}) {
    EXPECT_EQ(press(window.txtIP2, passes) + press(window.txtPort2, passes), "passespasses") << passes;
  }
  EXPECT_EQ(press(window.txtIP2, '.'), "passes");
  EXPECT_EQ(press(window.txtPort2, '.'), "Invalid key!: Only 0-9 is allowed");
  for (const int refused : {int{'a'}, int{' '}, int{':'}, int{'-'}, 13, 0xE9}) {
    EXPECT_EQ(press(window.txtIP2, refused), "Invalid IP!: Only 0-9 and \".\" is allowed") << refused;
  }
  EXPECT_EQ(press(window.txtIP, 'x'), "passes") << "the current server may be a name";
}

TEST(InputBoxes, a_paste_keeps_what_could_have_been_typed_and_the_colon_that_splits) {
  World world;
  std::string pasted = " 192.0.2.1:2302\r\n";
  world.mainWindow.txtIP2.pasting.fire(pasted);
  EXPECT_EQ(pasted, "192.0.2.1:2302");
  pasted = "halo://192.0.2.1:2302/join";
  world.mainWindow.txtIP2.pasting.fire(pasted);
  EXPECT_EQ(pasted, "192.0.2.1:2302");
  EXPECT_TRUE(world.notices.log.empty());
  pasted = "x192.0.2.1:23.02";
  world.mainWindow.txtIP2.pasting.fire(pasted);
  EXPECT_EQ(pasted, "192.0.2.1:2302");
  EXPECT_TRUE(world.notices.log.empty()) << "the balloon waits for the paste to be over";
  world.loop.wait(0);
  EXPECT_EQ(world.notices.log.back(), "Invalid IP!: Only 0-9 and \".\" is allowed");
  for (TextBox* const port : {&world.mainWindow.txtPort, &world.mainWindow.txtPort2}) {
    pasted = "192.0.2.1:2302\r\n";
    port->pasting.fire(pasted);
    EXPECT_EQ(pasted, "2302");
  }
}

TEST(InputBoxes, enter_queries_the_server_or_looks_for_the_player) {
  World world;
  std::string ran;
  world.commands.add(12, [&] { ran += "query "; });
  world.commands.add(23, [&] { ran += "find "; });
  const auto enter = [](TextBox& box) {
    KeyPress key{keys::enter};
    box.keyPress.fire(key);
    return key.code;
  };
  frmMain& window = world.mainWindow;
  EXPECT_EQ(enter(window.txtIP) + enter(window.txtPort) + enter(window.txtPlayer), 0);
  EXPECT_EQ(ran, "query query ");
  window.txtPlayer.text.set("bob");
  enter(window.txtPlayer);
  EXPECT_EQ(ran, "query query find ");
}

TEST(WindowLayout, the_panels_lie_where_the_anchors_and_the_window_say) {
  World world;
  frmMain& w = world.mainWindow;
  w.Width = 10155;
  w.Height = 8025;
  w.ListView2.place.set({1, 2, 3, 4});
  world.layout.layoutPanels();
  world.layout.layoutPanels();
  const Placement lists{600, 2160, 4125, 4755};
  const Placement background{0, 1400, 6255, 6615};
  const auto expected =
      std::to_array<std::pair<const Field<Placement>*, Placement>>({{&w.ListView1.place, lists},
                                                                    {&w.ListView2.place, lists},
                                                                    {&w.ListView4.place, lists},
                                                                    {&w.ListView5.place, {600, 2160, 4170, 1275}},
                                                                    {&w.PicBG.place, background},
                                                                    {&w.picSettings.place, background},
                                                                    {&w.PicAbout.place, {0, 1400, 10155, 6615}},
                                                                    {&w.PicChat.place, background},
                                                                    {&w.picRef.place, {5880, 1320, 6255, 6615}},
                                                                    {&w.picTools.place, {0, 1400, 10155, 6615}},
                                                                    {&w.picFaves.place, background},
                                                                    {&w.picScore.place, {5880, 1320, 4215, 6735}}});
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_TRUE(expected[i].first->get() == expected[i].second) << i;
  }
  EXPECT_EQ(w.PicServers.place.get().Top, 1400);
  EXPECT_EQ(w.PicServers.place.get().Height, 6615);
  EXPECT_EQ(w.picFaves2.place.get().Left, 5880);
  EXPECT_EQ(w.picFaves2.place.get().Top, 1320);
}

TEST(WindowLayout, the_panels_follow_the_size_of_a_window_that_is_neither_black_nor_minimised_nor_maximised) {
  World world;
  frmMain& w = world.mainWindow;
  float expected = 0;
  const auto resize = [&](float width, WindowState state, Color back) {
    w.Width = width;
    w.windowState.set(state);
    w.backColor.set(back);
    w.resized.fire();
    return w.PicBG.place.get().Width;
  };
  EXPECT_EQ(resize(12000, WindowState::normal, 0x400000), expected = 8100);
  EXPECT_EQ(resize(20000, WindowState::maximized, 0x400000), expected);
  EXPECT_EQ(resize(2000, WindowState::minimized, 0x400000), expected);
  EXPECT_EQ(resize(13000, WindowState::normal, colors::black), expected);
  EXPECT_EQ(resize(13000, WindowState::normal, 0x400000), 9100);
}

}  // namespace
}  // namespace vantrel

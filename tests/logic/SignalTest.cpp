#include "platform/Signal.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/Failure.h"
#include "platform/Field.h"

namespace vantrel {
namespace {

struct Story {
  std::function<void()> tells(const std::string& word) {
    return [this, word] { text += word; };
  }
  std::string text;
  Signal<> signal;
};

TEST(Signal, listeners_are_called_in_the_order_they_came_and_only_while_their_connection_lives) {
  Story story;
  const Connection a = story.signal.connect(story.tells("a"));
  Connection b = story.signal.connect(story.tells("b"));
  const Connection c = story.signal.connect(story.tells("c"));
  story.signal.fire();
  b = story.signal.connect(story.tells("d"));
  story.signal.fire();
  b.disconnect();
  b.disconnect();
  story.signal.fire();
  EXPECT_EQ(story.text, "abcacdac");
}

TEST(Signal, a_fire_inside_a_fire_calls_all_and_a_listener_that_comes_meanwhile_is_first_called_by_the_next) {
  Story story;
  int depth = 0;
  std::vector<Connection> added;
  const Connection a = story.signal.connect([&] {
    added.push_back(story.signal.connect(story.tells("x")));
    story.text += "(";
    if (++depth < 3) {
      story.signal.fire();
    }
    story.text += ")";
  });
  const Connection b = story.signal.connect(story.tells("b"));
  story.signal.fire();
  EXPECT_EQ(story.text, "((()bxx)bx)b");
}

TEST(Signal, a_listener_dropped_during_a_fire_is_not_called_even_by_outer_fires) {
  Story story;
  Connection self;
  Connection later;
  int depth = 0;
  self = story.signal.connect([&] {
    story.text += "self ";
    if (++depth == 2) {
      self.disconnect();
      later.disconnect();
    } else {
      story.signal.fire();
    }
  });
  later = story.signal.connect(story.tells("later "));
  const Connection last = story.signal.connect(story.tells("last "));
  story.signal.fire();
  story.signal.fire();
  EXPECT_EQ(story.text, "self self last last last ");
}

TEST(Signal, a_signal_destroyed_by_a_listener_calls_nobody_else) {
  std::string text;
  auto signal = std::make_unique<Signal<>>();
  const Connection a = signal->connect([&] {
    text += "a";
    signal.reset();
  });
  Connection b = signal->connect([&] { text += "b"; });
  signal->fire();
  b.disconnect();
  EXPECT_EQ(text, "a");
}

TEST(Signal, what_a_listener_throws_goes_to_the_caller_and_it_may_free_itself_with_what_it_holds) {
  Story story;
  auto held = std::make_shared<Connection>(story.signal.connect(story.tells("held ")));
  Connection a = story.signal.connect([&, held = std::move(held)] {
    a.disconnect();
    throw failures::overflow();
  });
  const Connection b = story.signal.connect(story.tells("b"));
  EXPECT_THROW(story.signal.fire(), Failure);
  story.signal.fire();
  EXPECT_EQ(story.text, "held b");
}

TEST(Field, listeners_are_told_of_changes_only_and_see_the_new_value) {
  Field<std::string> field("a");
  std::string seen;
  const Connection watch = field.changed.connect([&] { seen += field.get() + " "; });
  for (const char* value : {"a", "b", "b", "a"}) {
    field.set(value);
  }
  EXPECT_EQ(seen, "b a ");
}

}  // namespace
}  // namespace vantrel

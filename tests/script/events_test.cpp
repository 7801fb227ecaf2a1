// Events from words, and the way of an event to its line and back.
#include "script/events.h"

#include <gtest/gtest.h>

#include "windows/event_text.h"

namespace pelorium {
namespace {

UserEvent Read(const std::string& line) { return EventOf(SplitWords(line)); }

TEST(EventOf, ReadsPresses) {
  const UserEvent plain = Read("press Form5.Command1");
  EXPECT_EQ(plain.window, "Form5");
  EXPECT_EQ(plain.control, "Command1");
  EXPECT_EQ(plain.action, UserAction::Press);
  EXPECT_FALSE(plain.click.IsRight());
  EXPECT_EQ(plain.click.keys, Keys{});

  const UserEvent held = Read("press Form5.Command1 right shift ctrl alt");
  EXPECT_TRUE(held.click.IsRight());
  EXPECT_EQ(held.click.keys, (Keys{true, true, true}));
}

TEST(EventOf, ReadsMouseDoingsInSinglePrecision) {
  const UserEvent down = Read("mouse Form36.Picture1 down 0.1 -2.5 right alt");
  EXPECT_EQ(down.action, UserAction::MouseDown);
  EXPECT_EQ(down.x, 0.1f);
  EXPECT_EQ(down.y, -2.5f);
  EXPECT_TRUE(down.click.IsRight());
  EXPECT_EQ(down.click.keys, (Keys{false, false, true}));
  EXPECT_EQ(Read("mouse Form36.Picture1 move 1 2").action, UserAction::MouseMove);
  EXPECT_EQ(Read("mouse Form36.Picture1 up 1 2").action, UserAction::MouseUp);
}

TEST(EventOf, ReadsTheOthers) {
  EXPECT_EQ(Read("drag Form5.HScroll1 12.5").value, 12.5);
  EXPECT_EQ(Read("type Form5.Text1 \"a b\"").text, "a b");
  EXPECT_EQ(Read("doubleclick Form5.List1").action, UserAction::DoubleClick);
  EXPECT_EQ(Read("key Form5.Text1 \" \"").text, " ");
  const UserEvent resize = Read("resize Form36.Picture1 640 480");
  EXPECT_EQ(resize.width, 640);
  EXPECT_EQ(resize.height, 480);
}

TEST(EventOf, RefusesWrongWords) {
  for (const char* line : {"press",
                           "press a.b middle",
                           "press a.b left right",
                           "press a.b shift shift",
                           "drag a.b",
                           "drag a.b x",
                           "drag a.b 1 2",
                           "type a.b",
                           "type a.b c d",
                           "doubleclick a.b c",
                           "key a.b",
                           "key a.b ab",
                           "key a.b \"\"",
                           "mouse a.b down 1",
                           "mouse a.b over 1 2",
                           "mouse a.b down 1 y",
                           "mouse a.b down 1 2 middle",
                           "resize a.b 10",
                           "resize a.b 0 10",
                           "resize a.b 10 -1",
                           "resize a.b 1.5 2",
                           "get a.b"}) {
    EXPECT_THROW(Read(line), ScriptError) << line;
  }
}

UserEvent EventOn(UserAction action) {
  UserEvent event;
  event.window = "Form36";
  event.control = "Picture1";
  event.action = action;
  return event;
}

void ExpectComesBack(const UserEvent& event) {
  const std::string line = ScriptLine(event);
  const UserEvent back = Read(line);
  EXPECT_EQ(back.window, event.window) << line;
  EXPECT_EQ(back.control, event.control) << line;
  EXPECT_EQ(back.action, event.action) << line;
  EXPECT_EQ(back.value, event.value) << line;
  EXPECT_EQ(back.text, event.text) << line;
  EXPECT_EQ(back.click.button, event.click.button) << line;
  EXPECT_EQ(back.click.keys, event.click.keys) << line;
  EXPECT_EQ(back.x, event.x) << line;
  EXPECT_EQ(back.y, event.y) << line;
  EXPECT_EQ(back.width, event.width) << line;
  EXPECT_EQ(back.height, event.height) << line;
}

TEST(ScriptLine, ClicksComeBackAsTheyWent) {
  for (const UserAction action :
       {UserAction::Press, UserAction::MouseDown, UserAction::MouseMove, UserAction::MouseUp}) {
    for (int held = 0; held < 16; ++held) {
      UserEvent event = EventOn(action);
      event.click = {held & 1 ? MouseButton::Right : MouseButton::Left,
                     {(held & 2) != 0, (held & 4) != 0, (held & 8) != 0}};
      ExpectComesBack(event);
    }
  }
}

TEST(ScriptLine, NumbersComeBackAsTheyWent) {
  for (const double value : {0.0, -1.0, 0.1, 1e-7, 32767.0, 1e15, -2.5}) {
    UserEvent drag = EventOn(UserAction::Drag);
    drag.value = value;
    ExpectComesBack(drag);
    UserEvent mouse = EventOn(UserAction::MouseMove);
    mouse.x = static_cast<float>(value);
    mouse.y = static_cast<float>(value) / 3;
    ExpectComesBack(mouse);
  }
  UserEvent resize = EventOn(UserAction::Resize);
  resize.width = 1280;
  resize.height = 1;
  ExpectComesBack(resize);
}

TEST(ScriptLine, TextsComeBackAsTheyWent) {
  for (const char* text : {"", " ", "plain", "two words", "\"", "\\", "\\\"", "ends in \\", "# no comment",
                           "a#b", "tab\there", "end", "C:\\parts\\one.obj", "\xC3\xA4", "\xFF"}) {
    UserEvent type = EventOn(UserAction::Type);
    type.text = text;
    ExpectComesBack(type);
  }
  for (const char* character : {"a", " ", "#", "\"", "\\", "5"}) {
    UserEvent key = EventOn(UserAction::Key);
    key.text = character;
    ExpectComesBack(key);
  }
  ExpectComesBack(EventOn(UserAction::DoubleClick));
}

}  // namespace
}  // namespace pelorium

// Every command but get and set, which the places' tests use throughout.
#include <algorithm>
#include <filesystem>
#include <regex>

#include "script/commands.h"
#include "script_fixture.h"

namespace pelorium {
namespace {

class Commands : public ScriptTest {};

TEST_F(Commands, Press) {
  AnswerTo("press frmAbout.TestButton");
  AnswerTo("press frmAbout.TestButton right shift alt");
  AnswerTo("press frmAbout.TestTick");
  AnswerTo("press frmAbout.TestOption");
  EXPECT_EQ(TakeNotes(), "button left\nbutton right shift alt\ntick\n");
  EXPECT_TRUE(option.value());
}

TEST_F(Commands, Drag) {
  AnswerTo("drag frmAbout.TestBar 20");
  AnswerTo("drag frmAbout.TestBar 500");
  AnswerTo("drag frmAbout.TestBar -500");
  AnswerTo("drag frmAbout.TestList 2");
  EXPECT_EQ(TakeNotes(), "bar 20\nbar 36\nbar -5\nlist third\n");
  EXPECT_EQ(ErrorOf("drag frmAbout.TestList 3"), "error: test.pls:1: frmAbout.TestList has no entry 3\n");
  EXPECT_EQ(ErrorOf("drag frmAbout.TestList 1.5"), "error: test.pls:1: frmAbout.TestList has no entry 1.5\n");
  EXPECT_EQ(ErrorOf("drag frmAbout.TestList -1"), "error: test.pls:1: frmAbout.TestList has no entry -1\n");
}

TEST_F(Commands, Type) {
  AnswerTo("type frmAbout.TestBox \"new text\"");
  AnswerTo("type frmAbout.TestBox \"new text\"");
  EXPECT_EQ(TakeNotes(), "box new text\nkeyup\nkeyup\n");
}

TEST_F(Commands, DoubleClickAndKey) {
  AnswerTo("doubleclick frmAbout.TestList");
  AnswerTo("key frmAbout.TestView x");
  AnswerTo("key frmAbout.TestView \"\\\"\"");
  EXPECT_EQ(TakeNotes(), "list twice\nkey x\nkey \"\n");
}

TEST_F(Commands, Mouse) {
  AnswerTo(
      "mouse frmAbout.TestView down 1.5 -2.25\n"
      "mouse frmAbout.TestView move 3 4 right ctrl\n"
      "mouse frmAbout.TestView up 5 6 left shift ctrl alt");
  EXPECT_EQ(TakeNotes(), "down 1.5 -2.25 left\nmove 3 4 right ctrl\nup 5 6 left shift ctrl alt\n");
}

TEST_F(Commands, Resize) {
  AnswerTo("resize frmAbout.TestView 30 40");
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixelwidth\nget frmAbout.TestView.pixelheight"), "30\n40\n");
}

TEST_F(Commands, EventsAreRefusedWhereTheyCannotBe) {
  button.SetEnabled(false);
  bar.SetEnabled(false);
  const struct {
    const char *line, *what;
  } kCases[] = {
      {"press frmAbout.TestButton", "frmAbout.TestButton is disabled"},
      {"drag frmAbout.TestBar 1", "frmAbout.TestBar is disabled"},
      {"press frmAbout.TestBar", "press does nothing to frmAbout.TestBar, a ScrollBar"},
      {"drag frmAbout.TestBox 1", "drag does nothing to frmAbout.TestBox, a TextBox"},
      {"type frmAbout.TestBar 1", "type does nothing to frmAbout.TestBar, a ScrollBar"},
      {"doubleclick frmAbout.TestProgress",
       "doubleclick does nothing to frmAbout.TestProgress, a ProgressBar"},
      {"key frmAbout.TestLabel x", "key does nothing to frmAbout.TestLabel, a Label"},
      {"mouse frmAbout.TestButton up 1 2", "mouse does nothing to frmAbout.TestButton, a PushButton"},
      {"resize frmAbout.TestButton 1 2", "resize does nothing to frmAbout.TestButton, a PushButton"},
      {"press frmAbout.Nothing", "there is no control frmAbout.Nothing"},
      {"press Nothing.TestButton", "there is no window \"Nothing\""},
      {"press", "the command is press CONTROL [left|right] [shift] [ctrl] [alt]"},
      {"drag frmAbout.TestBar x", "value \"x\" is not a number"},
      {"key frmAbout.TestView xy", "key takes one character, not \"xy\""},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ErrorOf(c.line), std::string("error: test.pls:1: ") + c.what + "\n");
  }
  EXPECT_EQ(TakeNotes(), "");
}

TEST_F(Commands, WordsAreCounted) {
  for (const char* line : {"get",        "get a b",       "set a",          "set a b c",  "answer",
                           "answer a b", "cancel a",      "modal",          "messages a", "dialogs a",
                           "faults a",   "points 0 1",    "points 0 1 2 3", "faces 0 1",  "corners 0 1",
                           "profile",    "profile 1 2",   "save a",         "load a",     "seed",
                           "seed 1 2",   "time",          "list a b",       "quit now",   "end",
                           "nothing",    "GET TessCount", "time nothing"}) {
    Play(line);
    EXPECT_EQ(status, 2) << line;
    EXPECT_EQ(out.str(), "") << line;
  }
  EXPECT_EQ(ErrorOf("get a b"), "error: test.pls:1: the command is get PLACE\n");
  EXPECT_EQ(ErrorOf("frob"), "error: test.pls:1: unknown command \"frob\"\n");
}

TEST_F(Commands, AnswersQueueUp) {
  AnswerTo("answer \"a b.prj\"\ncancel\nanswer c.prj");
  EXPECT_EQ(platform.AskFileName({}), "a b.prj");
  EXPECT_EQ(platform.AskFileName({}), "");
  EXPECT_EQ(platform.AskFileName({}), "c.prj");
  EXPECT_EQ(platform.AskFileName({}), "");
}

TEST_F(Commands, MessagesAndDialogsAndFaults) {
  app.faults.TakeAll();
  EXPECT_EQ(AnswerTo("messages\ndialogs\nfaults"), "");
  platform.ShowMessage("It says \"no\"\nand more");
  platform.ShowMessage("again");
  EXPECT_EQ(AnswerTo("messages\nmessages"), "\"It says \\\"no\\\" and more\"\n\"again\"\n");
  platform.AskFileName({true, "Save it", "/home/a b", "All (*.x)|*.x", "*.x"});
  platform.AskFileName({false, "Open", "", "", ""});
  EXPECT_EQ(AnswerTo("dialogs\ndialogs"),
            "save \"Save it\" \"/home/a b\" \"All (*.x)|*.x\" \"*.x\"\nopen \"Open\" \"\" \"\" \"\"\n");
  app.faults.Note("Form1.Command1", Fault(FaultKind::Subscript, "point 23001"));
  EXPECT_EQ(AnswerTo("faults\nfaults"), "Form1.Command1: subscript out of range: point 23001\n");
}

TEST_F(Commands, PointRows) {
  PointRec& point = app.model.Points(1, 2);
  point = {0.1, -2, 3.5, 0.25, 0.75, 0};
  app.model.PointMark(1, 2) = 3;
  EXPECT_EQ(AnswerTo("points 1 1 2"), "1 1 1 1 1 1 1 1\n2 0.1 -2 3.5 0 3 0.25 0.75\n");
  EXPECT_EQ(AnswerTo("points 0 2 1"), "");
  EXPECT_EQ(ErrorOf("points 0 22999 23001"), "error: test.pls:1: subscript out of range: point 23001\n");
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(ErrorOf("points 4 2 1"), "error: test.pls:1: subscript out of range: Part 4\n");
  EXPECT_EQ(ErrorOf("points 0 a 1"), "error: test.pls:1: FIRST \"a\" is not a number\n");
}

TEST_F(Commands, FaceAndCornerRows) {
  FaceRec& face = app.model.Faces(0, 3);
  face.corner1pt = 40000;
  face.corner2pt = 5;
  face.corner3pt = 6;
  face.onoff = 0;
  face.group = 41;
  face.vt1 = 7;
  face.vt2 = 8;
  face.vt3 = -9;
  face.c1X = 0.5;
  face.c2Y = 1e-16;
  face.c3Z = -3;
  EXPECT_EQ(AnswerTo("faces 0 2 3"), "2 1 1 1 1 0 0 0 0\n3 40000 5 6 0 41 7 8 -9\n");
  EXPECT_EQ(AnswerTo("corners 0 3 3"), "3 0.5 0 0 0 1E-16 0 0 0 -3\n");
  EXPECT_EQ(ErrorOf("faces 0 0 7701"), "error: test.pls:1: subscript out of range: face 7701\n");
}

TEST_F(Commands, ProfileRows) {
  app.model.ProfilePts(36, 5).X = 1.5;
  app.model.ProfilePts(36, 5).Z = -2;
  const std::string rows = AnswerTo("profile 5");
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 37);
  EXPECT_TRUE(rows.starts_with("0 0 0 0\n1 0 0 0\n"));
  EXPECT_TRUE(rows.ends_with("\n35 0 0 0\n36 1.5 0 -2\n"));
  EXPECT_EQ(ErrorOf("profile 37"), "error: test.pls:1: subscript out of range: profile 37\n");
}

TEST_F(Commands, SaveAndLoad) {
  for (const char* ending : {".png", ".bmp"}) {
    const std::string file = testing::TempDir() + "pelorium script" + ending;
    view.picture.Line(3, 4, 4, 4, Rgb(200, 100, 50));
    AnswerTo("save frmAbout.TestView \"" + file + "\"");
    view.picture.Resize(5, 5);
    EXPECT_EQ(AnswerTo("load frmAbout.TestView \"" + file +
                       "\"\nget frmAbout.TestView.pixelwidth\n"
                       "get frmAbout.TestView.pixel(3,4)"),
              "20\n3302600\n");
    std::filesystem::remove(file);
  }
  ErrorOf("save frmAbout.TestView /nowhere/at/all.png");
  ErrorOf("save frmAbout.TestView picture.gif");
  ErrorOf("load frmAbout.TestView /nowhere/at/all.png");
  EXPECT_EQ(ErrorOf("save frmAbout.TestBar a.png"), "error: test.pls:1: frmAbout.TestBar is not a picture\n");
}

TEST_F(Commands, SeedRepeatsTheSeries) {
  AnswerTo("seed 42");
  const double first = app.random.Next();
  app.random.Next();
  app.random.SeedFromClock(platform.ClockReading());
  EXPECT_EQ(app.random.Next(), first);
  AnswerTo("seed 42");
  EXPECT_EQ(app.random.Next(), first);
  ErrorOf("seed now");
}

TEST_F(Commands, TimeRunsAndTells) {
  const std::string answer = AnswerTo("time get TessCount");
  EXPECT_TRUE(std::regex_match(answer, std::regex("1\nms [0-9]+(\\.[0-9]+)?\n"))) << answer;
  ErrorOf("time get Nothing");
  EXPECT_EQ(out.str(), "");
}

TEST_F(Commands, ListNamesWindowsAndControls) {
  AnswerTo("set helpme.caption \"Help \\\"me\\\"\"");
  EXPECT_NE(AnswerTo("list").find("helpme \"Help \\\"me\\\"\"\n"), std::string::npos);
  const std::string controls = AnswerTo("list frmAbout");
  for (const char* line :
       {"ScrollBar TestBar 7 -5..36 \"How many\" \"sets \\\"how many\\\"\"\n",
        "TextBox TestBox \"old text\" - \"\" \"\"\n", "Label TestLabel \"a label\" - \"a label\" \"\"\n",
        "CheckBox TestTick 0 - \"a tick\" \"\"\n", "ListBox TestList -1 - \"\" \"\"\n",
        "ProgressBar TestProgress 0 0..50 \"\" \"\"\n"}) {
    EXPECT_NE(("\n" + controls).find(std::string("\n") + line), std::string::npos) << line << controls;
  }
  ErrorOf("list Form99");
}

}  // namespace
}  // namespace pelorium

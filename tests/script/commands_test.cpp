// Every command but get and set, which the places' tests use throughout.
#include "script/commands.h"

#include <algorithm>
#include <filesystem>
#include <regex>

#include "script_fixture.h"

namespace pelorium {
namespace {

class Commands : public ScriptTest {};

TEST_F(Commands, EventsReachTheirControls) {
  const struct {
    const char *line, *notes;
  } kCases[] = {
      {"press frmAbout.TestButton", "button left\n"},
      {"press frmAbout.TestButton right shift alt", "button right shift alt\n"},
      {"press frmAbout.TestTick", "tick\n"},
      {"drag frmAbout.TestBar 20", "bar 20\n"},
      {"drag frmAbout.TestBar 500", "bar 36\n"},
      {"drag frmAbout.TestList 2", "list third\n"},
      {"type frmAbout.TestBox \"new text\"", "box new text\nkeyup\n"},
      {"type frmAbout.TestBox \"new text\"", "keyup\n"},
      {"doubleclick frmAbout.TestList", "list twice\n"},
      {"key frmAbout.TestView \"\\\"\"", "key \"\n"},
      {"mouse frmAbout.TestView down 1.5 -2.25", "down 1.5 -2.25 left\n"},
      {"mouse frmAbout.TestView move 3 4 right ctrl", "move 3 4 right ctrl\n"},
      {"mouse frmAbout.TestView up 5 6 left shift ctrl alt", "up 5 6 left shift ctrl alt\n"},
  };
  for (const auto& c : kCases) {
    AnswerTo(c.line);
    EXPECT_EQ(TakeNotes(), c.notes) << c.line;
  }
  AnswerTo("resize frmAbout.TestView 30 40");
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixelwidth\nget frmAbout.TestView.pixelheight"), "30\n40\n");
}

TEST_F(Commands, EventsAreRefusedWhereTheyCannotBe) {
  button.SetEnabled(false);
  const struct {
    const char *line, *what;
  } kCases[] = {
      {"press frmAbout.TestButton", "frmAbout.TestButton is disabled"},
      {"press frmAbout.TestBar", "press does nothing to frmAbout.TestBar, a ScrollBar"},
      {"drag frmAbout.TestBox 1", "drag does nothing to frmAbout.TestBox, a TextBox"},
      {"drag frmAbout.TestList 3", "frmAbout.TestList has no entry 3"},
      {"drag frmAbout.TestList 1.5", "frmAbout.TestList has no entry 1.5"},
      {"drag frmAbout.TestBar x", "value \"x\" is not a number"},
      {"doubleclick frmAbout.TestProgress",
       "doubleclick does nothing to frmAbout.TestProgress, a ProgressBar"},
      {"key frmAbout.TestLabel x", "key does nothing to frmAbout.TestLabel, a Label"},
      {"key frmAbout.TestView xy", "key takes one character, not \"xy\""},
      {"mouse frmAbout.TestTick up 1 2", "mouse does nothing to frmAbout.TestTick, a CheckBox"},
      {"press", "the command is press CONTROL [left|right] [shift] [ctrl] [alt]"},
  };
  for (const auto& c : kCases) EXPECT_EQ(ErrorOf(c.line), ErrorText(c.what));
  EXPECT_EQ(TakeNotes(), "");
}

TEST_F(Commands, WordsAreCounted) {
  for (const char* line :
       {"set a",     "set a b c",     "answer",      "cancel a",       "modal",     "messages a",
        "dialogs a", "faults a",      "points 0 1",  "points 0 1 2 3", "faces 0 1", "corners 0 1",
        "profile",   "save a",        "load a",      "seed",           "time",      "list a b",
        "quit now",  "GET TessCount", "time nothing"}) {
    Play(line);
    EXPECT_EQ(status, 2) << line;
    EXPECT_EQ(out.str(), "") << line;
  }
  EXPECT_EQ(ErrorOf("get a b"), ErrorText("the command is get PLACE"));
  EXPECT_EQ(ErrorOf("frob"), ErrorText("unknown command \"frob\""));
}

TEST_F(Commands, AnswersQueueUp) {
  AnswerTo("answer \"a b.prj\"\ncancel\nanswer c.prj");
  for (const char* answer : {"a b.prj", "", "c.prj", ""}) EXPECT_EQ(platform.AskFileName({}), answer);
}

TEST_F(Commands, MessagesAndDialogsAndFaults) {
  app.faults.TakeAll();
  platform.ShowMessage("It says \"no\"\nand more");
  EXPECT_EQ(AnswerTo("messages\nmessages"), "\"It says \\\"no\\\" and more\"\n");
  platform.AskFileName({true, "Save it", "/home/a b", "All (*.x)|*.x", "*.x"});
  platform.AskFileName({false, "Open", "", "", ""});
  EXPECT_EQ(AnswerTo("dialogs\ndialogs"),
            "save \"Save it\" \"/home/a b\" \"All (*.x)|*.x\" \"*.x\"\nopen \"Open\" \"\" \"\" \"\"\n");
  app.faults.Note("Form1.Command1", Fault(FaultKind::Subscript, "point 23001"));
  EXPECT_EQ(AnswerTo("faults\nfaults"), "Form1.Command1: subscript out of range: point 23001\n");
}

TEST_F(Commands, RowsOfTheModel) {
  app.model.Points(1, 2) = {0.1, -2, 3.5, 0.25, 0.75, 0};
  app.model.PointMark(1, 2) = 3;
  EXPECT_EQ(AnswerTo("points 1 1 2"), "1 1 1 1 1 1 1 1\n2 0.1 -2 3.5 0 3 0.25 0.75\n");
  EXPECT_EQ(AnswerTo("points 0 2 1"), "");

  app.model.Faces(0, 3) = {.c1X = 0.5,
                           .c2Y = 1e-16,
                           .c3Z = -3,
                           .corner1pt = 40000,
                           .corner2pt = 5,
                           .corner3pt = 6,
                           .onoff = 0,
                           .group = 41,
                           .vt1 = 7,
                           .vt2 = 8,
                           .vt3 = -9};
  EXPECT_EQ(AnswerTo("faces 0 2 3"), "2 1 1 1 1 0 0 0 0\n3 40000 5 6 0 41 7 8 -9\n");
  EXPECT_EQ(AnswerTo("corners 0 3 3"), "3 0.5 0 0 0 1E-16 0 0 0 -3\n");

  app.model.ProfilePts(36, 5).X = 1.5;
  app.model.ProfilePts(36, 5).Z = -2;
  const std::string rows = AnswerTo("profile 5");
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 37);
  EXPECT_TRUE(rows.starts_with("0 0 0 0\n1 0 0 0\n"));
  EXPECT_TRUE(rows.ends_with("\n35 0 0 0\n36 1.5 0 -2\n"));

  EXPECT_EQ(ErrorOf("points 0 22999 23001"), ErrorText("subscript out of range: point 23001"));
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(ErrorOf("points 4 2 1"), ErrorText("subscript out of range: Part 4"));
  EXPECT_EQ(ErrorOf("faces 0 a 1"), ErrorText("FIRST \"a\" is not a number"));
  EXPECT_EQ(ErrorOf("profile 37"), ErrorText("subscript out of range: profile 37"));
}

TEST_F(Commands, SaveAndLoad) {
  for (const char* ending : {".png", ".bmp"}) {
    const std::string file = testing::TempDir() + "pelorium script" + ending;
    view.picture().Line(3, 4, 4, 4, Rgb(200, 100, 50));
    AnswerTo("save frmAbout.TestView \"" + file + "\"");
    view.picture().Resize(5, 5);
    AnswerTo("load frmAbout.TestView \"" + file + "\"");
    EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixelwidth\nget frmAbout.TestView.pixel(3,4)"),
              "20\n3302600\n");
    std::filesystem::remove(file);
  }
  ErrorOf("save frmAbout.TestView /nowhere/at/all.png");
  ErrorOf("load frmAbout.TestView /nowhere/at/all.png");
  EXPECT_EQ(ErrorOf("save frmAbout.TestBar a.png"), ErrorText("frmAbout.TestBar is not a picture"));
}

TEST_F(Commands, SeedRepeatsTheSeries) {
  AnswerTo("seed 42");
  const double first = app.random.Next();
  EXPECT_NE(app.random.Next(), first);
  AnswerTo("seed 42");
  EXPECT_EQ(app.random.Next(), first);
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
  const std::string controls = std::string("\n") + AnswerTo("list frmAbout");
  for (const char* line :
       {"\nScrollBar TestBar 7 -5..36 \"How many\" \"sets \\\"how many\\\"\"\n",
        "\nTextBox TestBox \"old text\" - \"\" \"\"\n", "\nListBox TestList -1 - \"\" \"\"\n"}) {
    EXPECT_NE(controls.find(line), std::string::npos) << line << controls;
  }
}

}  // namespace
}  // namespace pelorium

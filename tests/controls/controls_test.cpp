// What setting, pressing and typing does to controls; more of it in the transcripts of the scripts.
#include <limits>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/properties.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "support/harness.h"

namespace pelorium {
namespace {

// A window whose controls count what they fire.
class Bench : public FolderTest {
 protected:
  Bench() {
    bar.onChange = [this] {
      ++changes;
      shownAtChange = box.text();
    };
  }

  ControlHost host;
  Window window{host, "Form1", "Bench"};
  BoxedBar bar{window, {"HScroll1", "Text1", {.min = -100, .max = 400, .value = 5}, "Size", "", 100}};
  TextBox& box = bar.box;
  int changes = 0;
  std::string shownAtChange;
};

TEST_F(Bench, ABarFiresOnceForADifferentValueWithinItsLimits) {
  bar.SetValue(5);
  EXPECT_EQ(changes, 0);
  bar.SetValue(-50);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(shownAtChange, "-0.5");
  EXPECT_EQ(bar.Shown(), -0.5);
  for (const int value : {-100, 400}) bar.SetValue(value);
  for (const int value : {-101, 401}) {
    EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { bar.SetValue(value); }));
    EXPECT_EQ(bar.value(), 400);
  }
  const double kNaN = std::numeric_limits<double>::quiet_NaN();
  for (const auto& [dragged, value] : {std::pair{1e300, 400}, {-401.0, -100}, {2.5, 2}, {kNaN, -100}}) {
    bar.Drag(dragged);
    EXPECT_EQ(bar.value(), value) << dragged;
  }
  EXPECT_EQ(changes, 6);  // 1e300 changed nothing
}

TEST_F(Bench, LimitsPullTheValue) {
  bar.SetMax(500);
  EXPECT_EQ(changes, 0);
  bar.SetMax(3);
  EXPECT_EQ(bar.value(), 3);
  EXPECT_EQ(changes, 1);
  bar.SetMin(3);
  EXPECT_EQ(changes, 1);
  bar.SetMax(10);
  bar.SetMin(7);
  EXPECT_EQ(bar.value(), 7);
  EXPECT_EQ(changes, 2);
  bar.SetValueWidening(23000);
  EXPECT_EQ(bar.max(), 23000);
  EXPECT_EQ(bar.value(), 23000);
  bar.SetValueWidening(-2);
  EXPECT_EQ(bar.min(), -2);
  EXPECT_EQ(changes, 4);
}

TEST_F(Bench, LimitsMayStandTheOtherWayRound) {
  ScrollBar swapped(window, "VScroll1", {.min = 200, .max = -200, .value = 0});
  swapped.SetValue(200);
  swapped.SetValue(-200);
  EXPECT_TRUE(Raises(FaultKind::InvalidValue, [&] { swapped.SetValue(201); }));
  EXPECT_EQ(swapped.Clamped(999), 200);
  EXPECT_EQ(swapped.Clamped(-999), -200);
}

TEST_F(Bench, TypingIntoABoxMovesTheBarWithinItsLimits) {
  int moves = 0, texts = 0;
  bar.onMovedByPerson = [&] { ++moves; };
  box.onChange = [&] { ++texts; };
  box.Type("1.256mm");  // stays as typed; the bar rounds
  EXPECT_EQ(bar.value(), 126);
  EXPECT_EQ(bar.Shown(), 1.256);
  EXPECT_EQ(box.text(), "1.256mm");
  box.Type("9");  // outside: the limit counts, and shows once the typing is over
  EXPECT_EQ(bar.value(), 400);
  EXPECT_EQ(box.text(), "9");
  EXPECT_EQ(box.Number(), 4);
  const int textsTyped = texts;
  box.FinishTyping();
  EXPECT_EQ(box.text(), "4");
  EXPECT_EQ(texts, textsTyped);
  box.Type("none");
  EXPECT_EQ(bar.value(), 0);
  box.FinishTyping();
  EXPECT_EQ(box.text(), "none");
  EXPECT_EQ(changes, 3);
  box.Type("0.004");  // a finer number is another number, though the bar stands there already
  EXPECT_EQ(changes, 4);
  bar.SetValue(0);  // as the program sets it: the fraction goes, and nothing runs
  EXPECT_EQ(changes, 4);
  EXPECT_EQ(bar.Shown(), 0);
  box.FinishTyping();
  EXPECT_EQ(box.text(), "0");
  EXPECT_EQ(moves, 4);
  box.SetText("2");  // as the program sets it: the bar stays
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(Bench, ABoxedBarIsOneDeclaration) {
  BoxedBar exact{window,
                 {.bar = "HScroll2",
                  .box = "Text2",
                  .range = {-600, 600, 36},
                  .label = "Size",
                  .toolTip = "of all",
                  .divisor = kHundredths,
                  .text = ".36",
                  .boxTip = "as typed"},
                 Typing::IsTheValue};
  EXPECT_EQ(window.controls(), (std::vector<Control*>{&bar, &box, &exact, &exact.box}));
  EXPECT_EQ(box.text() + exact.box.text(), "0.05.36");
  EXPECT_EQ(exact.Shown(), 0.36);
  EXPECT_EQ(exact.toolTip() + ", " + exact.box.toolTip(), "of all, as typed");
  exact.box.Type("700.5");  // the text is the value, whatever the bar can do
  EXPECT_EQ(exact.value(), 36);
  EXPECT_EQ(exact.Number(), 700.5);
  exact.SetValue(-50);
  EXPECT_EQ(exact.Number(), -0.5);
  exact.Reset();
  EXPECT_EQ(exact.value(), 36);
  EXPECT_EQ(exact.box.text(), ".36");

  const LayoutItem row = BarRow(bar, {&exact});
  EXPECT_EQ(row.title, "Size");
  EXPECT_EQ(row.controls, (std::vector<Control*>{&bar, &box, &exact}));

  struct Row {
    BarSpec spec;
  };
  const BoxedBars bars = MakeBars(
      window, std::vector<Row>{{{"HScroll3", "Text3", {}, "A", "tip"}}, {{"HScroll4", "Text4", {}, "B"}}},
      Typing::MovesBar);
  EXPECT_EQ(bars[0]->box.toolTip(), "tip");  // that of its bar
  bars[1]->box.Type("7");
  EXPECT_EQ(bars[1]->value(), 7);
}

TEST_F(Bench, OptionsOfAGroupExcludeEachOther) {
  std::string seen;
  const auto tells = [&](OptionButton& button, const char* name) {
    button.onClick = [&seen, name](const Click&) { seen += name; };
  };
  OptionButton one(window, "Option1", "One", "view", true), two(window, "Option2", "Two", "view");
  OptionButton other(window, "Option3", "Other", "axis", true);
  tells(one, "1"), tells(two, "2");
  two.SetValue(true);
  EXPECT_TRUE(two.value() && !one.value() && other.value());
  two.Press({});
  EXPECT_TRUE(two.value());
  two.SetValue(false);
  EXPECT_EQ(seen, "2");

  // One that is armed may be disarmed by a click.
  OptionButton tool(window, "Option4", "One", "tool", true, "", OptionButton::WhenArmed::IsDisarmed);
  OptionButton next(window, "Option5", "Two", "tool", false, "", OptionButton::WhenArmed::IsDisarmed);
  tells(tool, "t"), tells(next, "n");
  tool.Press({});
  EXPECT_FALSE(tool.value());
  next.Press({});
  tool.Press({});
  EXPECT_TRUE(tool.value() && !next.value());
  EXPECT_EQ(seen, "2nt");
}

TEST_F(Bench, FolderLists) {
  for (const char* name : {"b.OBJ", "a.obj", "c.txt"}) WriteBytes(folder() / name, "");
  std::filesystem::create_directory(folder() / "d.obj");
  FileList files(window, "File1", "*.obj");
  EXPECT_EQ(files.index(), -1);
  files.SetFolder(folder());
  EXPECT_EQ(files.items(), (std::vector<std::string>{"a.obj", "b.OBJ"}));
  EXPECT_EQ(files.ChosenPath(), "");
  files.SetIndex(1);
  EXPECT_EQ(files.ChosenPath(), folder() / "b.OBJ");
  files.SetFolder(folder() / "missing");
  EXPECT_TRUE(files.items().empty());

  DirList folders(window, "Dir1");
  folders.SetFolder(folder());
  EXPECT_EQ(folders.items(), (std::vector<std::string>{"..", "d.obj"}));
  EXPECT_EQ(folders.ChosenFolder(), folder());
  folders.SetIndex(1);
  EXPECT_EQ(folders.ChosenFolder(), folder() / "d.obj");
  folders.SetIndex(0);
  EXPECT_EQ(folders.ChosenFolder(), folder().parent_path());
}

TEST(Patterns, Match) {
  for (const auto& [name, patterns] :
       std::initializer_list<std::pair<const char*, const char*>>{{"A.PRJ", "*.prj"},
                                                                  {"a.prj2", "*.prj*"},
                                                                  {".prj", "*.prj"},
                                                                  {"a.txt", "*.prj;*.txt"},
                                                                  {"a.rtf", "*.txt*;*rtf"},
                                                                  {"", "*"},
                                                                  {"aXbXc", "a*b*c"},
                                                                  {"aab", "*ab"},
                                                                  {"abab.ab", "*ab"},
                                                                  {"exact", "exact"}})
    EXPECT_TRUE(MatchesPattern(name, patterns)) << name << " " << patterns;
  for (const auto& [name, patterns] : std::initializer_list<std::pair<const char*, const char*>>{
           {"a.prj2", "*.prj"}, {"prj", "*.prj"}, {"x", ""}, {"aXbX", "a*b*c"}, {"exactly", "exact"}})
    EXPECT_FALSE(MatchesPattern(name, patterns)) << name << " " << patterns;
}

// What scripts reach is tested in their transcripts.
TEST_F(Bench, PropertiesByName) {
  EXPECT_TRUE(SetProperty(bar, "max", "3 units"));
  EXPECT_EQ(bar.value(), 3);
  EXPECT_TRUE(SetProperty(bar, "largechange", 25.0));
  EXPECT_EQ(bar.largeChange, 25);
  EXPECT_TRUE(SetProperty(box, "text", 0.5));
  EXPECT_EQ(GetProperty(box, "value"), PropertyValue("0.5"));
  EXPECT_TRUE(SetProperty(box, "left", 12.5));
  EXPECT_EQ(box.left, 12.5);
  EXPECT_EQ(GetProperty(box, "max"), std::nullopt);
  EXPECT_FALSE(SetProperty(box, "max", 1.0));

  ProgressBar progress(window, "ProgressBar1", 10);
  EXPECT_TRUE(SetProperty(progress, "value", 12.0));
  EXPECT_EQ(progress.value(), 10);
  EXPECT_TRUE(SetProperty(progress, "max", 4.0));
  EXPECT_EQ(GetProperty(progress, "value"), PropertyValue(4.0));
  EXPECT_FALSE(SetProperty(progress, "min", 1.0));

  PictureBox picture(window, "Picture1", 20, 10);
  EXPECT_TRUE(SetProperty(picture, "scaleheight", -15.0));
  EXPECT_EQ(picture.measures().ScaleWidth(), 20);
  EXPECT_TRUE(SetProperty(picture, "forecolor", 255.0));
  EXPECT_EQ(picture.picture().foreColour, 255U);
  int resized = 0;
  picture.onResize = [&](int width, int) { resized = width; };
  picture.Resize(0, 5);
  EXPECT_EQ(resized, 0);
}

// A face sees every change, and the new state with it.
TEST_F(Bench, TheListenerHearsOfChanges) {
  struct Listener : ControlListener {
    void ControlChanged(Control& control) override {
      heard += control.FullName() + "=" + AsText(control.Value()) + " ";
    }
    void WindowChanged(Window& window) override { heard += window.name() + " "; }
    std::string heard;
  } listener;
  host.listener = &listener;
  bar.SetValue(8);
  bar.SetValue(8);
  window.Show();
  EXPECT_EQ(listener.heard, "Form1.HScroll1=8 Form1.Text1=0.08 Form1 ");
  EXPECT_EQ(window.Find("HScroll1"), &bar);
  EXPECT_EQ(window.Find("hscroll1"), nullptr);
}

}  // namespace
}  // namespace pelorium

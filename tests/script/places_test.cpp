// Places: reading and writing each sort, and the errors for those that there are none of.
#include "script/places.h"

#include "script_fixture.h"

namespace pelorium {
namespace {

class Places : public ScriptTest {};

TEST_F(Places, ReadControls) {
  tick.SetValue(true);
  list.SetIndex(2);
  progress.SetValue(20);
  box.SetText(R"(a "b" \c)");
  view.picture().Line(3, 4, 4, 4, Rgb(1, 2, 3));
  const struct {
    const char *place, *answer;
  } kCases[] = {
      {"TestBar", "7\n"},
      {"TestBar.min", "-5\n"},
      {"TestBar.largechange", "9\n"},
      {"TestBar.caption", "\"How many\"\n"},
      {"TestBar.tooltip", "\"sets \\\"how many\\\"\"\n"},
      {"TestBar.enabled", "1\n"},
      {"TestTick", "1\n"},
      {"TestOption", "0\n"},
      {"TestList", "2\n"},
      {"TestProgress", "20\n"},
      {"TestBox.text", "\"a \\\"b\\\" \\\\c\"\n"},
      {"TestLabel", "\"a label\"\n"},
      {"TestButton", "\"Do it\"\n"},
      {"TestView.scalewidth", "20\n"},
      {"TestView.backcolor", "4210752\n"},
      {"TestView.forecolor", "14737632\n"},
      {"TestView.pixel(3,4)", "197121\n"},
      {"TestView.pixel(19,9)", "4210752\n"},
      {"TestView.pixel(20,9)", "-1\n"},
      {"TestView.pixel(0,-1)", "-1\n"},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(AnswerTo(std::string("get frmAbout.") + c.place), c.answer) << c.place;
  for (const char* place : {"pixel(1)", "pixel(1,x)", "pixel(1,2", "pixel()", "pixel(1,2).x"}) {
    ErrorOf(std::string("get frmAbout.TestView.") + place);
  }
}

TEST_F(Places, SetControlsAsTheProgramDoes) {
  const struct {
    const char *place, *notes;
  } kCases[] = {
      {"TestBar 12", "bar 12\n"},   {"TestBar 12.5", ""},     {"TestBar.max 10", "bar 10\n"},
      {"TestBox 007", "box 007\n"}, {"TestTick 1", "tick\n"}, {"TestList 1", "list second\n"},
      {"TestButton.enabled 0", ""}, {"TestLabel 5", ""},      {"TestView.scaleheight -200", ""},
  };
  for (const auto& c : kCases) {
    AnswerTo(std::string("set frmAbout.") + c.place);
    EXPECT_EQ(TakeNotes(), c.notes) << c.place;
  }
  EXPECT_FALSE(button.enabled());
  EXPECT_EQ(label.caption(), "5");
  EXPECT_EQ(view.measures().ScaleHeight(), -200);
}

TEST_F(Places, SetNeedsAFittingValue) {
  EXPECT_EQ(ErrorOf("set frmAbout.TestBar 37"),
            ErrorText("invalid value: frmAbout.TestBar := 37, allowed -5..36"));
  EXPECT_EQ(ErrorOf("set frmAbout.TestBar many"), ErrorText("value \"many\" is not a number"));
  EXPECT_EQ(bar.value(), 7);
  EXPECT_EQ(ErrorOf("set Points(0,1).onoff 40000"), ErrorText("overflow: 40000"));
  EXPECT_EQ(ErrorOf("set Points(0,1).X far"), ErrorText("value \"far\" is not a number"));
  EXPECT_EQ(app.model.Points(0, 1).onoff, 1);
  EXPECT_EQ(app.model.Points(0, 1).X, 1);
  for (const char* wrong : {"TestBar 1e300", "TestBar.max \"\"", "TestList 3", "TestTick on", "TestView here",
                            "TestView.scalewidth 0", "TestView.pixelwidth 10", "TestView.pixel(1,2) 0"}) {
    ErrorOf(std::string("set frmAbout.") + wrong);
  }
}

TEST_F(Places, UnknownNamesAreTold) {
  const struct {
    const char *place, *what;
  } kCases[] = {
      {"Form99.HScroll1", "there is no window \"Form99\""},
      {"HScroll1", "there is no window \"HScroll1\""},
      {"frmAbout", "frmAbout is a window; name a control or a property of it"},
      {"frmAbout.testbar", "there is no control frmAbout.testbar"},
      {"frmAbout.TestBar.Max", "there is no property frmAbout.TestBar.Max"},
      {"frmAbout.TestBar.", "there is no property frmAbout.TestBar."},
      {"frmAbout.TestBar.text", "there is no property frmAbout.TestBar.text"},
      {"Point(0,1).X", "there is no table \"Point\""},
      {"Points(0).X", "Points takes 2 subscripts, not 1"},
      {"Part(0,1).count", "Part takes 1 subscript, not 2"},
      {"Points(0,1)", "there is no field Points(0,1)"},
      {"Points(0,1).x", "there is no field Points(0,1).x"},
      {"Points(0,2).count", "there is no field Points(0,2).count"},
      {"PointMark(0,1).X", "there is no field PointMark(0,1).X"},
      {"Points(0,1)X", "a field must follow in Points(0,1)X"},
      {"Points(0,1.X", "a bracket is not closed in Points(0,1.X"},
      {"Points(a,1).X", "subscript \"a\" is not a number"},
      {"Points(0,1.5).X", "subscript 1.5 is not a whole number"},
      {"Points(0,23001).X", "subscript out of range: point 23001"},
      {"Points(4,1).X", "subscript out of range: Part 4"},
      {"ProfilePts(37,0).X", "subscript out of range: layer 37"},
      {"MaterialGroups(42).d", "subscript out of range: group 42"},
  };
  for (const auto& c : kCases) EXPECT_EQ(ErrorOf(std::string("get ") + c.place), ErrorText(c.what));
}

TEST_F(Places, AreWrittenAndRead) {
  const struct {
    const char *place, *value, *answer;
  } kCases[] = {
      {"helpme.caption", "\"Help me\"", "\"Help me\"\n"},
      {"helpme.top", "30.5", "30.5\n"},
      {"helpme.visible", "1", "1\n"},
      {"Points(0,1).X", "0.1", "0.1\n"},
      {"Points(3,23000).Z", "-1e20", "-1E+20\n"},
      {"Points(0,1).Sections", "36", "36\n"},
      {"PointMark(0,7)", "2.5", "2\n"},
      {"FaceMark(0,7700)", "0", "0\n"},
      {"Faces(0,1).corner1pt", "23000", "23000\n"},
      {"Faces(0,1).maxpoints", "9", "9\n"},
      {"Faces(1,1).PartName", "\"left wheel\"", "\"left wheel\"\n"},
      {"ProfilePts(36,36).Y", "1e-3", "0.001\n"},
      {"ProfilePts(1,30).count", "5", "5\n"},
      {"ProfilePts( 2, 30 ).spinZ", "7", "7\n"},
      {"MaterialGroups(41).KdR", "0.333333333333333333", "0.3333333333333333\n"},
      {"MaterialGroups(0).GroupName", "12", "\"12\"\n"},
      {"Part(2).minfaces", "0", "0\n"},
      {"Profile(36).layerCount", "3", "3\n"},
      {"TessCount", "22", "22\n"},
      {"RotX", "0.1", "0.1\n"},
      {"RotY", "-45", "-45\n"},
      {"RotZ", "16777217", "16777216\n"},
      {"ShadeMoveX", "0.1", "0.1\n"},
      {"ShadeMoveY", "2", "2\n"},
      {"ShadeMoveZ", "-3", "-3\n"},
  };
  for (const auto& c : kCases) {
    const std::string place = std::string("\"") + c.place + "\"";
    EXPECT_EQ(AnswerTo("set " + place + " " + c.value + "\nget " + place), c.answer) << c.place;
  }
  EXPECT_TRUE(modal.visible());
  EXPECT_EQ(app.model.Part(0).Sections, 36);
  EXPECT_EQ(app.model.Part(0).maxpoints, 9);
  EXPECT_EQ(app.model.Profile(30).count, 5);
  EXPECT_EQ(app.model.MaterialGroups(0).GroupName, "12");
  EXPECT_EQ(app.TessCount, 22);
  EXPECT_EQ(app.shadedPose.RotX, 0.1f);
}

}  // namespace
}  // namespace pelorium

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
  const struct {
    const char *place, *answer;
  } kCases[] = {
      {"frmAbout.TestBar", "7\n"},
      {"frmAbout.TestBar.value", "7\n"},
      {"frmAbout.TestBar.min", "-5\n"},
      {"frmAbout.TestBar.max", "36\n"},
      {"frmAbout.TestBar.smallchange", "2\n"},
      {"frmAbout.TestBar.largechange", "9\n"},
      {"frmAbout.TestBar.caption", "\"How many\"\n"},
      {"frmAbout.TestBar.tooltip", "\"sets \\\"how many\\\"\"\n"},
      {"frmAbout.TestBar.enabled", "1\n"},
      {"frmAbout.TestBar.visible", "1\n"},
      {"frmAbout.TestBar.left", "0\n"},
      {"frmAbout.TestTick", "1\n"},
      {"frmAbout.TestOption", "0\n"},
      {"frmAbout.TestList", "2\n"},
      {"frmAbout.TestProgress", "20\n"},
      {"frmAbout.TestProgress.max", "50\n"},
      {"frmAbout.TestBox", "\"a \\\"b\\\" \\\\c\"\n"},
      {"frmAbout.TestBox.text", "\"a \\\"b\\\" \\\\c\"\n"},
      {"frmAbout.TestLabel", "\"a label\"\n"},
      {"frmAbout.TestButton", "\"Do it\"\n"},
      {"frmAbout.TestView.pixelwidth", "20\n"},
      {"frmAbout.TestView.pixelheight", "10\n"},
      {"frmAbout.TestView.scalewidth", "20\n"},
      {"frmAbout.TestView.drawwidth", "1\n"},
      {"frmAbout.TestView.backcolor", "4210752\n"},
      {"frmAbout.TestView.forecolor", "14737632\n"},
  };
  for (const auto& c : kCases) EXPECT_EQ(AnswerTo(std::string("get ") + c.place), c.answer) << c.place;
}

TEST_F(Places, ReadPixels) {
  view.picture.Line(3, 4, 4, 4, Rgb(1, 2, 3));
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixel(3,4)"), "197121\n");
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixel(0,0)"), "4210752\n");
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixel(19,9)"), "4210752\n");
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixel(20,9)"), "-1\n");
  EXPECT_EQ(AnswerTo("get frmAbout.TestView.pixel(0,-1)"), "-1\n");
  for (const char* place :
       {"pixel(1)", "pixel(1,2,3)", "pixel(1,x)", "pixel(1,2", "pixel()", "pixel(1,2).x"}) {
    ErrorOf(std::string("get frmAbout.TestView.") + place);
  }
  ErrorOf("get frmAbout.TestBar.pixel(1,2)");
  ErrorOf("set frmAbout.TestView.pixel(1,2) 0");
}

TEST_F(Places, SetControlsAsTheProgramDoes) {
  AnswerTo("set frmAbout.TestBar 12");
  AnswerTo("set frmAbout.TestBar 12");
  AnswerTo("set frmAbout.TestBar 12.5");
  AnswerTo("set frmAbout.TestBar.max 10");
  EXPECT_EQ(TakeNotes(), "bar 12\nbar 10\n");
  AnswerTo("set frmAbout.TestBox 007");
  AnswerTo("set frmAbout.TestBox \"two words\"");
  EXPECT_EQ(TakeNotes(), "box 007\nbox two words\n");
  AnswerTo("set frmAbout.TestTick 1");
  AnswerTo("set frmAbout.TestList 1");
  EXPECT_EQ(TakeNotes(), "tick\nlist second\n");
  AnswerTo("set frmAbout.TestLabel 5");
  EXPECT_EQ(label.caption(), "5");
  AnswerTo("set frmAbout.TestButton.enabled 0");
  EXPECT_FALSE(button.enabled());
  AnswerTo("set frmAbout.TestView.scaleheight -200");
  EXPECT_EQ(view.picture.ScaleHeight(), -200);
}

TEST_F(Places, SetFailsOutsideARange) {
  EXPECT_EQ(ErrorOf("set frmAbout.TestBar 37"),
            "error: test.pls:1: invalid value: frmAbout.TestBar := 37, allowed -5..36\n");
  EXPECT_EQ(bar.value(), 7);
  ErrorOf("set frmAbout.TestBar 1e300");
  ErrorOf("set frmAbout.TestList 3");
  ErrorOf("set frmAbout.TestView.scalewidth 0");
}

TEST_F(Places, SetNeedsAFittingValue) {
  EXPECT_EQ(ErrorOf("set frmAbout.TestBar many"), "error: test.pls:1: value \"many\" is not a number\n");
  ErrorOf("set frmAbout.TestBar.max \"\"");
  ErrorOf("set frmAbout.TestTick on");
  ErrorOf("set frmAbout.TestView here");
  ErrorOf("set frmAbout.TestView.pixelwidth 10");
}

TEST_F(Places, Windows) {
  AnswerTo("set helpme.caption \"Help me\"");
  EXPECT_EQ(AnswerTo("get helpme.caption"), "\"Help me\"\n");
  AnswerTo("set helpme.left 150");
  AnswerTo("set helpme.top 30.5");
  EXPECT_EQ(AnswerTo("get helpme.left"), "150\n");
  EXPECT_EQ(AnswerTo("get helpme.top"), "30.5\n");
  AnswerTo("set helpme.visible 1");
  EXPECT_TRUE(modal.visible());
  AnswerTo("set helpme.visible 0");
  EXPECT_EQ(AnswerTo("get helpme.visible"), "0\n");
}

TEST_F(Places, UnknownNamesAreTold) {
  const struct {
    const char *place, *what;
  } kCases[] = {
      {"Form99.HScroll1", "there is no window \"Form99\""},
      {"HScroll1", "there is no window \"HScroll1\""},
      {"FRMABOUT.TestBar", "there is no window \"FRMABOUT\""},
      {"frmAbout", "frmAbout is a window; name a control or a property of it"},
      {"frmAbout.testbar", "there is no control frmAbout.testbar"},
      {"frmAbout.TestBar.size", "there is no property frmAbout.TestBar.size"},
      {"frmAbout.TestBar.Max", "there is no property frmAbout.TestBar.Max"},
      {"frmAbout.TestBar.", "there is no property frmAbout.TestBar."},
      {"frmAbout.TestBar.text", "there is no property frmAbout.TestBar.text"},
      {"frmAbout.TestBar.max.max", "there is no property frmAbout.TestBar.max.max"},
      {"frmAbout.width", "there is no control frmAbout.width"},
      {"Point(0,1).X", "there is no table \"Point\""},
      {"Points(0).X", "Points takes 2 subscripts, not 1"},
      {"Part(0,1).count", "Part takes 1 subscript, not 2"},
      {"Points(0,1)", "there is no field Points(0,1)"},
      {"Points(0,1).x", "there is no field Points(0,1).x"},
      {"Points(0,2).count", "there is no field Points(0,2).count"},
      {"Points(0,1).maxpoints", "there is no field Points(0,1).maxpoints"},
      {"Faces(0,2).PartName", "there is no field Faces(0,2).PartName"},
      {"ProfilePts(2,0).count", "there is no field ProfilePts(2,0).count"},
      {"PointMark(0,1).X", "there is no field PointMark(0,1).X"},
      {"Points(0,1)X", "a field must follow in Points(0,1)X"},
      {"Points(0,1.X", "a bracket is not closed in Points(0,1.X"},
      {"Points(a,1).X", "subscript \"a\" is not a number"},
      {"Points(0,1.5).X", "subscript 1.5 is not a whole number"},
      {"Points(0,23001).X", "subscript out of range: point 23001"},
      {"Points(4,1).X", "subscript out of range: Part 4"},
      {"Points(0,-1).X", "subscript out of range: point -1"},
      {"Faces(0,7701).group", "subscript out of range: face 7701"},
      {"ProfilePts(37,0).X", "subscript out of range: layer 37"},
      {"ProfilePts(0,37).X", "subscript out of range: profile 37"},
      {"MaterialGroups(42).d", "subscript out of range: group 42"},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ErrorOf(std::string("get ") + c.place), std::string("error: test.pls:1: ") + c.what + "\n");
  }
}

TEST_F(Places, TablesAreWrittenAndRead) {
  const struct {
    const char *place, *value, *answer;
  } kCases[] = {
      {"Points(0,1).X", "0.1", "0.1\n"},
      {"Points(3,23000).Z", "-1e20", "-1E+20\n"},
      {"Points(1,5).onoff", "0", "0\n"},
      {"Points(0,1).Sections", "36", "36\n"},
      {"Points(0,1).count", "12", "12\n"},
      {"Points(1,1).vtcount", "4", "4\n"},
      {"PointMark(0,7)", "2.5", "2\n"},
      {"FaceMark(0,7700)", "0", "0\n"},
      {"Faces(0,1).corner1pt", "23000", "23000\n"},
      {"Faces(0,1).maxpoints", "9", "9\n"},
      {"Faces(1,1).PartName", "\"left wheel\"", "\"left wheel\"\n"},
      {"Faces(0,2).c3Z", "0.25", "0.25\n"},
      {"ProfilePts(36,36).Y", "1e-3", "0.001\n"},
      {"ProfilePts(1,30).count", "5", "5\n"},
      {"ProfilePts(1,30).genMoveX", "1.5", "1.5\n"},
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
  EXPECT_EQ(app.model.Part(0).Sections, 36);
  EXPECT_EQ(app.model.Part(0).maxpoints, 9);
  EXPECT_EQ(app.model.Profile(30).count, 5);
  EXPECT_EQ(app.model.MaterialGroups(0).GroupName, "12");
  EXPECT_EQ(app.TessCount, 22);
  EXPECT_EQ(app.shadedPose.RotX, 0.1f);
}

TEST_F(Places, TablesRefuseWhatDoesNotFit) {
  EXPECT_EQ(ErrorOf("set Points(0,1).onoff 40000"), "error: test.pls:1: overflow: 40000\n");
  EXPECT_EQ(ErrorOf("set Points(0,1).X far"), "error: test.pls:1: value \"far\" is not a number\n");
  EXPECT_EQ(app.model.Points(0, 1).onoff, 1);
  EXPECT_EQ(app.model.Points(0, 1).X, 1);
}

}  // namespace
}  // namespace pelorium

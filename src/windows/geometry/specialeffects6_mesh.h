// "Create mesh/tesselated": makes Parts of points that come from no revolve or extrude (clicked ones, clouds,
// rings, profiles, a grid with heights), and faces between them.
#pragma once

#include <optional>

#include "base/random_series.h"
#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "geometry/mesh_grid.h"
#include "geometry/triangulate.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class SpecialEffects6 : public ToolWindow {
 public:
  explicit SpecialEffects6(App& app);

  // "Part #" shows the current Part.
  void PartChosen() override;
  // Picture4 shows the mesh anew. Does nothing while the window is closed.
  void ViewsRefreshed(const ViewSettings& settings) override;

  // A click sets the next point, at X, Y of the model. Z is "Elevation" or the gray level of the background
  // image, as Check1 says; without a gray it is `otherwise`, or stays.
  void AddPoint(double x, double y, std::optional<double> otherwise = std::nullopt);

  BoxedBar HScroll1{*this,
                    {"HScroll1", "Text1", {0, kUserParts - 1, 0, 1, 1}, "Part #", "set current part# "}};
  BoxedBar HScroll2{
      *this, {"HScroll2", "Text2", {-1200, 1200, 10}, "Elevation", "Z of the points that are made here"}};
  CheckBox Check1{*this, "Check1", "Use elevation", false, "checked=use elevation unchecked=use grayscale"};

  PictureBox Picture4{*this, "Picture4", kAreaWidth, kAreaHeight,
                      "stands for the view from above: each click sets the next point"};
  Label Label5{*this, "Label5", "totalpoints; 0", "the point set last, or the faces made last"};
  PushButton Command7{*this, "Command7", "Tesselate ", "Create the effect"};
  PushButton Command5{*this, "Command5", "Reset Pos", "the next click sets point 1"};
  CheckBox Check2{*this, "Check2", "Auto Tesselate", false,
                  "Tesselate part# automatically per when pt is set-each time "};
  OptionButton Option1{*this, "Option1", "no elev", "elev", true, "faces between all chosen points"};
  OptionButton Option2{*this,  "Option2", "elev range",
                       "elev", false,     "only points from Min Elevation to Max Elevation make faces"};
  OptionButton Option3{
      *this,
      "Option3",
      "elev radius",
      "elev",
      false,
      "points far above or below the faces around them are left out; may leave gaps and folds"};
  OptionButton Option4{*this,
                       "Option4",
                       "elev dist",
                       "elev",
                       false,
                       "points farther than Elev Dist above or below are left out; may leave gaps and folds, "
                       "and a small distance no face at all"};
  BoxedBar HScroll6{
      *this, {"HScroll6", "Text14", {-1500, 1500, 0, 1, 50}, "Min Elevation", "lowest Z of elev range"}};
  BoxedBar HScroll7{
      *this, {"HScroll7", "Text13", {-1500, 1500, 1500, 1, 50}, "Max Elevation", "highest Z of elev range"}};
  BoxedBar HScroll8{
      *this,
      {"HScroll8", "Text15", {-1500, 1500, 600, 1, 50}, "Elev Dist", "largest distance of elev dist, in Z"}};

  ScrollBar HScroll16{*this,
                      "HScroll16",
                      {0, 1, 0, 1, 1},
                      "Grid",
                      "left: the grid makes its own faces, right: it presses Tesselate"};
  Label Label16{*this, "Label16", "Tesselate ", "what Grid does with the bar to the right"};
  BoxedBar HScroll37{
      *this, {"HScroll37", "Text41", {3, 1200, 3}, "Total Points", "points that the next Tesselate takes"}};
  BoxedBar HScroll38{
      *this,
      {"HScroll38",
       "Text42",
       {1, 1200, 1},
       "Every",
       "above 1, Tesselate first chooses point 1 and each so-many-th behind it, and no others"}};
  PushButton Command10{*this, "Command10", "get pts info",
                       "takes all points of the Part for the next Tesselate"};
  PushButton Command11{*this, "Command11", "Save to Temp", "keeps the points of the Part"};
  PushButton Command12{*this, "Command12", "Get from Temp", "brings the kept points back; the faces stay"};

  BoxedBar HScroll3{*this, {"HScroll3", "Text10", {3, 36, 6}, "# of sides", "points of the ring"}};
  BoxedBar HScroll4{*this, {"HScroll4", "Text11", {10, 400, 50}, "X dia", "amount of units in x dir"}};
  BoxedBar HScroll5{*this, {"HScroll5", "Text12", {10, 400, 50}, "Y dia", "amount of units in y dir"}};
  PushButton Command1{*this, "Command1", "Sided Shape",
                      "a ring of points around the origin: left button starts anew, right button adds it"};

  TextBox Text4{*this, "Text4", "630", "sets x dir max "};
  TextBox Text5{*this, "Text5", "630", "sets y dir max"};
  TextBox Text6{*this, "Text6", "100", "random points, at least 3"};
  TextBox Text20{*this, "Text20", "12357974", "equal seeds give equal points"};
  PushButton Command9{*this, "Command9", "Rnd", "another seed"};
  PushButton Command2{*this, "Command2", "Random Mesh", "a cloud of points at random places"};

  BoxedBar HScroll10{*this,
                     {"HScroll10", "Text18", {0, kMaxProfile, kMaxProfile, 1, 5}, "Max", kProfilesTip}};
  BoxedBar HScroll11{*this, {"HScroll11", "Text19", {0, kMaxProfile, 0, 1, 5}, "Min", kProfilesTip}};
  PushButton Command4{*this, "Command4", "Create from profiles (Top View Based)", kProfilesTip};

  BoxedBar HScroll13{
      *this, {"HScroll13", "Text3", {0, kMaxLayer, 10}, "units X dir", "rows of points"}, Typing::IsTheValue};
  BoxedBar HScroll12{*this,
                     {"HScroll12", "Text7", {0, kMaxLayer, 10}, "units Y dir", "columns of points"},
                     Typing::IsTheValue};
  BoxedBar HScroll14{
      *this, {"HScroll14", "Text8", {0, 110, 40}, "Spacing X", "units between columns"}, Typing::IsTheValue};
  BoxedBar HScroll15{
      *this, {"HScroll15", "Text9", {0, 110, 40}, "Spacing Y", "units between rows"}, Typing::IsTheValue};
  TextBox Text27{*this, "Text27", "-1", "number of the column before the first"};
  TextBox Text28{*this, "Text28", "-1", "number of the row before the first"};
  TextBox Text30{*this, "Text30", "1", "radians of the sine from row to row"};
  TextBox Text29{*this, "Text29", "1", "radians of the cosine from column to column"};
  BoxedBar HScroll17{*this, {"HScroll17", "Text21", kWaveRange, "Ampl  ", kAmplitudeTip}, Typing::IsTheValue};
  BoxedBar HScroll18{*this, {"HScroll18", "Text22", kWaveRange, "Tilt", kTiltTip}, Typing::IsTheValue};
  BoxedBar HScroll19{*this, {"HScroll19", "Text23", kWaveRange, "Curve", kCurveTip}, Typing::IsTheValue};
  BoxedBar HScroll22{*this, {"HScroll22", "Text24", kWaveRange, "Aml", kAmplitudeTip}, Typing::IsTheValue};
  BoxedBar HScroll23{*this, {"HScroll23", "Text25", kWaveRange, "Tilt", kTiltTip}, Typing::IsTheValue};
  BoxedBar HScroll24{*this, {"HScroll24", "Text26", kWaveRange, "Curve", kCurveTip}, Typing::IsTheValue};
  ScrollBar HScroll27{*this, "HScroll27", kProfileRange, "Profile #",
                      "its additive Z amount 1 at the row times its Z at the column is added to the height"};
  Label Label27{*this, "Label27", "0", kNumberTip};
  ScrollBar HScroll30{*this, "HScroll30", kProfileRange, "Profile #",
                      "its additive Z amount 2 at the column times its Z at the row is added to the height"};
  Label Label30{*this, "Label30", "0", kNumberTip};
  ScrollBar HScroll32{*this, "HScroll32", kProfileRange, "Profile #",
                      "its Z at the row times Mult Amnt is added to the height"};
  Label Label32{*this, "Label32", "0", kNumberTip};
  TextBox Text37{*this, "Text37", "0", "factor of the profile's Z at the row"};
  ScrollBar HScroll34{*this, "HScroll34", kProfileRange, "Profile #",
                      "its Z at the column times Mult Amnt is added to the height"};
  Label Label34{*this, "Label34", "0", kNumberTip};
  TextBox Text35{*this, "Text35", "0", "factor of the profile's Z at the column"};
  CheckBox Check3{*this, "Check3", "Auto Create", false, "any change of the grid's settings makes it anew"};
  PushButton Command3{*this, "Command3", "Grid", "makes the Part a grid of points with faces between them"};

 private:
  static constexpr int kAreaWidth = 321, kAreaHeight = 212;  // pixels; a third of the view's usual size
  static constexpr BarRange kWaveRange = {-100, 100, 0};
  static constexpr BarRange kProfileRange = {0, kMaxProfile, 0, 1, 5};
  static constexpr const char* kProfilesTip = "Create tesselated shape based on a range of profiles";
  static constexpr const char* kNumberTip = "the profile's number";
  static constexpr const char* kAmplitudeTip = "units of the wave up and down";
  static constexpr const char* kTiltTip = "units that each next one rises";
  static constexpr const char* kCurveTip = "units times the square of the number";

  void BindParameters();
  void BindPoints();
  void BindGrid();
  void AutoCreate();

  void ShowMesh(ViewSettings settings);
  void Picture4_MouseDown(const struct MouseEvent& event);
  TessellationSettings ReadTessellation() const;
  MeshGridSettings ReadGrid() const;
  int HeldPointCount();

  void Command7_Click();
  void Command1_Click(bool startsAnew);
  void Command2_Click();
  void Command4_Click();
  void Command3_Click();
  void Command10_Click();
  void Command12_Click();

  void FollowMesh();
  void FinishPoints(int points, OptionButton& view, bool keepsFaces = false);

  LayoutItem DeclareLayout();
  LayoutItem GridFrame();

  RandomSeries seeds_;  // of the cloud: draws elsewhere do not shift them
};

}  // namespace pelorium

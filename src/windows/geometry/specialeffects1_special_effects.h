// "Special Effects": deforms the chosen points of the current Part, shapes them by pictures and with a brush,
// welds, and copies between Parts.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/chosen_points.h"
#include "geometry/bulge.h"
#include "geometry/conform.h"
#include "geometry/part_copies.h"
#include "geometry/flatten.h"
#include "windows/shell/tool_window.h"
#include "windows/view/view_mouse.h"

namespace pelorium {

class App;

class SpecialEffects1 : public ToolWindow {
 public:
  explicit SpecialEffects1(App& app);

  // "From Part #" shows the current Part.
  void PartChosen() override;

  // Roughen, and the random move of rings.
  BoxedBar HScroll17{*this,
                     {"HScroll17", "Text3", {0, 1000, 10}, "X-Amnt", "random amount in x dir onto obj"}};
  BoxedBar HScroll18{*this,
                     {"HScroll18", "Text23", {0, 1000, 10}, "YAmnt", "random amount in y dir onto obj"}};
  BoxedBar HScroll19{*this,
                     {"HScroll19", "Text22", {0, 1000, 10}, "Z-Amnt", "random amount in z dir onto obj"}};
  TextBox Text5{*this, "Text5", "20", "each ring moves by half of this at most, either way, on each axis"};
  TextBox Text16{*this, "Text16", "145632", "the same seed gives the same moves"};

  // Bulge.
  BoxedBar HScroll13{
      *this, {"HScroll13", "Text18", {0, kMaxProfile, 0}, "Start", "start of profile range for effect"}};
  BoxedBar HScroll14{*this,
                     {"HScroll14", "Text19", {0, kMaxProfile, 0}, "End", "end of profile range for effect"}};
  BoxedBar HScroll28{*this,
                     {"HScroll28",
                      "Text34",
                      {0, 2000, 150},
                      "Max Dist",
                      "how far the profile points reach, for Add/Sub, Mult and exp"}};
  TextBox Text31{*this, "Text31", "50", "how far the profile points reach in X, for Bulge and ="};
  TextBox Text32{*this, "Text32", "50", "how far the profile points reach in Y, for Bulge and ="};
  TextBox Text33{*this, "Text33", "50", "how far the profile points reach in Z, for Bulge and ="};
  CheckBox Check1{*this, "Check1", "X", true, "effect in X dir"};
  CheckBox Check2{*this, "Check2", "Y", true, "effect in Y dir"};
  CheckBox Check3{*this, "Check3", "Z", true, "effect in Z dir"};
  TextBox Text29{*this, "Text29", "0.995", "factor (of exp: power) of the right button"};
  TextBox Text30{*this, "Text30", "1.005", "factor (of exp: power) of the left button"};

  // Conform.
  BoxedBar HScroll15{
      *this, {"HScroll15", "Text17", {0, 255, 249}, "Gray Level Max", "brighter pixels have no effect"}};
  BoxedBar HScroll16{*this,
                     {"HScroll16", "Text20", {0, 255, 0}, "Gray Level Min", "darker pixels have no effect"}};
  BoxedBar HScroll20{*this, {"HScroll20", "Text12", {-1500, 1500, 1200}, "max`Z", "sets max Z level range"}};
  BoxedBar HScroll21{*this, {"HScroll21", "Text21", {-1500, 1500, -1200}, "Min Z", "sets min Z level range"}};
  BoxedBar HScroll22{
      *this, {"HScroll22", "Text24", {0, 36, 36}, "Layers End", "the point range ends with this layer"}};
  BoxedBar HScroll23{
      *this, {"HScroll23", "Text25", {0, 36, 0}, "Layers Start", "the point range starts with this layer"}};
  BoxedBar HScroll24{
      *this,
      {"HScroll24", "Text26", {0, 4000, 995}, "Dec mult Amount", "factor of the right button", kThousandths}};
  BoxedBar HScroll25{*this,
                     {"HScroll25",
                      "Text27",
                      {0, 4000, 1005},
                      "Incr mult amount",
                      "factor of the left button",
                      kThousandths}};
  BoxedBar HScroll2{*this,
                    {"HScroll2",
                     "Text4",
                     {-1000, 1000, 25},
                     "ht scale",
                     "units of Z for each gray level (1=100)",
                     kHundredths,
                     ".25"}};

  // The brush.
  CheckBox Check8{*this, "Check8", "Enable Distortion ", false,
                  "drags over the view push the chosen points under the mouse, right button in depth"};
  BoxedBar HScroll12{
      *this,
      {"HScroll12", "Text14", {1, 100, 1}, "Radius", "of the brush, in twentieths of the view's width"}};
  OptionButton Option1{*this,      "Option1", "XYZ",
                       "distance", true,      "the brush is a ball: it reaches as far in depth"};
  OptionButton Option2{*this, "Option2", " XY", "distance", false, "the brush goes through all Z"};
  OptionButton Option3{*this, "Option3", "XZ", "distance", false, "the brush goes through all Y"};
  OptionButton Option4{*this, "Option4", " YZ", "distance", false, "the brush goes through all X"};

  BoxedBar HScroll11{*this,
                     {"HScroll11", "Text13", {1, 1000, 2}, "Step Amnt", "from one picked point to the next"}};
  BoxedBar HScroll9{*this,
                    {"HScroll9",
                     "Text11",
                     {0, 100, 1},
                     "Band",
                     "how the bands around the columns widen from one unit to the next",
                     kHundredths,
                     ".01"}};
  BoxedBar HScroll3{*this,
                    {.bar = "HScroll3",
                     .box = "Text15",
                     .range = {0, 1000, 0},
                     .label = "dist +",
                     .toolTip = "points that lie within this distance are moved together",
                     .boxTip = "the distance; after Combine the number of points that moved"}};
  PushButton Command10{*this, "Command10", "Combine", "moves points that lie close together onto one place"};
  Label Label8{*this, "Label8", "", "what Conjoin does just now"};
  ProgressBar ProgressBar1{*this, "ProgressBar1", 100};

  // Names and copies.
  BoxedBar HScroll6{*this,
                    {"HScroll6", "Text1", kPartPicker, "Part # to copy", "Part whose points are taken"}};
  BoxedBar HScroll5{*this, {"HScroll5", "Text7", kPartPicker, "Part#", "part number to name"}};
  TextBox Text8{*this, "Text8", "", "the Part's new name"};
  BoxedBar HScroll4{
      *this,
      {"HScroll4", "Text6", kPartPicker, "Part# to combine to", "the current Part is put into this one"}};
  BoxedBar HScroll1{
      *this,
      {"HScroll1", "Text2", {0, kUserParts - 1, 1, 1, 1}, "Part #", "the offsets become this Part's counts"}};
  BoxedBar HScroll7{*this,
                    {"HScroll7",
                     "Text9",
                     {0, kMaxPoints, 0, 1, 100},
                     "Pts offset",
                     "added to the numbers of copied points"}};
  BoxedBar HScroll8{*this,
                    {"HScroll8",
                     "Text10",
                     {0, kMaxFaces, 0, 1, 100},
                     "Faces Offset",
                     "copied faces are counted from here"}};
  CheckBox Check4{*this, "Check4", "Points", true,
                  "off: only faces are copied, over points that are there already"};
  BoxedBar HScroll31{*this, {"HScroll31", "Text46", kPartPicker, "From Part #", "the current Part"}};
  BoxedBar HScroll26{*this, {"HScroll26", "Text28", kPartPicker, "to Part #", "Part that is copied to"}};

  // The buttons of a table: effects, picks, copies, pictures.
  std::vector<std::unique_ptr<PushButton>> effectButtons;

 private:
  static constexpr BarRange kPartPicker = {0, kUserParts - 1, 0, 1, 1};

  struct EffectButton {
    std::string_view frame;  // where it stands
    const char *name, *caption, *toolTip;
    void (*act)(SpecialEffects1& window, bool isRight);
    EditRule rule = {};
    bool takesSides = false;  // left and right do different things: it acts when the button goes down
  };
  static std::span<const EffectButton> EffectButtons();

  // What the effects read from Precise Edit.
  struct EffectParams {
    ChosenPoints chosen;  // with its step
    Vec3 origin;
  };
  EffectParams LoadEditParams() const;

  void MakeButtons();
  void BindBars();
  void Flatten(Axis axis, FlatSide side);
  void RoughenPoints();
  void ShakeTheRings(bool isBack);
  enum class Reach { Radius, Box };
  void BulgePoints(BulgeEffect effect, Reach reach, double amount);
  double Factor(bool isRight) const { return (isRight ? Text29 : Text30).Number(); }
  const Picture& LayViewOnPicture();
  ConformRange ReadConformRange() const;
  void Conform(bool alongX, bool alongY, bool isRight);
  void Lift(bool isRight);
  void LoadPictureNumber(int number);
  void ChooseLayers();
  static void StepPair(ScrollBar& upper, ScrollBar& lower, bool isBack);
  void Distort(const BrushTouch& touch);
  void CutColumns();
  void Conjoin();
  void JoinEnds(bool firstMoves);
  void Command10_Click();
  int RingWidth() const;
  void NamePart();
  void ShowOffsets();
  PartCopy AtOffsets(int part) const;
  PartCopy Behind(int part) const;
  void Copy(const PartCopy& copy, void (*write)(ModelStore&, const PartCopy&));

  LayoutItem ButtonsOf(std::string_view frame, std::vector<Control*> before = {}) const;
  LayoutItem EffectFrame(std::string_view frame, std::vector<LayoutItem> items = {}) const;
  LayoutItem DeclareLayout();
  std::vector<LayoutItem> DeformingFrames();
  std::vector<LayoutItem> ConformingFrames();
  std::vector<LayoutItem> WeldingFrames();
  std::vector<LayoutItem> CopyingFrames();
};

}  // namespace pelorium

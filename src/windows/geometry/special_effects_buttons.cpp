// The buttons of "Special Effects", and where everything stands in the window.
#include <array>
#include <string>
#include <utility>

#include "geometry/choose_points.h"
#include "geometry/copy_nearest.h"
#include "windows/geometry/specialeffects1_special_effects.h"
#include "windows/shell/app_shell.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

// Titles of frames.
constexpr std::string_view kFlatten = "Flatten Effect   Uses Origin point for effect", kRoughen = "Roughen",
                           kShake = "Rings", kBulge = "Bulge",
                           kBox = "Max Dist               X              Y            Z",
                           kConform = "Conform", kMold = "Mold Part", kGrays = "Graylevel Max Min Range ",
                           kHeights = "Z range",
                           kLayers = "Choose Obj Points range By Layer:", kPick = "Pick pts -- on or off",
                           kCutoff = "Angular cutoff",
                           kNearest = "Copy current part# XYZ 's to  points based on dist",
                           kConjoin = "Conjoin ", kJoinEnds = "Join Ends", kNames = "Name parts #",
                           kCombine = "Copy and Paste Curent Part # to new part# (combine)",
                           kCopy = "Copy Part";

constexpr const char* kFlatBelowTip =
    "either button: chosen points that lie below the origin on this axis come up to it";
constexpr const char* kFlatAboveTip =
    "either button: chosen points that lie above the origin on this axis come down to it";
constexpr const char* kRoughenTip =
    "either button: all points of the range, chosen or not, move up by random whole units";
constexpr const char* kShakeTip =
    "moves the chosen points ring by ring at random, right button moves them back (sections of Revolve)";
constexpr const char* kAddTip =
    "chosen points near the profiles: left button moves them up by 1 unit, right button down";
constexpr const char* kMultTip =
    "chosen points near the profiles: multiplies them, left button by the upper factor, right button by the "
    "lower";
constexpr const char* kExpTip =
    "chosen points near the profiles: raises them to a power, left button the upper, right button the lower";
constexpr const char* kSnapTip =
    "either button: chosen points near the profiles snap to the first profile point that reaches them";
constexpr const char* kConformXTip =
    "Conform Chosen Part# in X dir to Gray Level Left Click Scale up  Right Click Scale down";
constexpr const char* kConformYTip =
    "Conform Chosen Part# in Y dir to Gray Level Left Click Scale up  Right Click Scale down";
constexpr const char* kConformXYTip =
    "Conform Chosen Part# in X and Y dir to Gray Level Left Click Scale up  Right Click Scale down";
constexpr const char* kLiftTip =
    "left button: Z becomes the gray level times ht scale, right button: less than 0";
constexpr const char* kIncrTip = "increment by difference";
constexpr const char* kMoldTip = "Left Click= Get Picture  ";
constexpr const char* kPickTip = "left button: every n-th point on, right button: off";
constexpr const char* kCutoffTip =
    "either button: chosen points near the origin in Y go onto columns a unit apart, from the origin to 200";
constexpr const char* kNearestTip = "either button: chosen points go onto the nearest point of that Part";
constexpr const char* kConjoinTip =
    "either button: corners on the same place become one point, points without a face are switched off";
constexpr const char* kFirstToLastTip = "either button: the first ring of points goes onto the last";
constexpr const char* kLastToFirstTip = "either button: the last ring of points goes onto the first";
constexpr const char* kCombineTip =
    "left button: puts the current Part behind the other one's points and faces, right button: at the "
    "offsets";
constexpr const char* kCopyTip = "Copies currently chosen part to a selected part# ";
constexpr const char* kAddPartTip = "either button: points and faces that are on, behind those of that Part";
constexpr const char* kDisjointTip =
    "either button: faces that are on, each with three points of its own, at the offsets of the combine";

constexpr bool kTakesSides = true;

}  // namespace

std::span<const SpecialEffects1::EffectButton> SpecialEffects1::EffectButtons() {
  using W = SpecialEffects1;
  using enum Axis;
  using enum FlatSide;
  using E = BulgeEffect;
  static const auto kButtons = std::to_array<EffectButton>({
      {kFlatten, "Command1", "Flat X  <", kFlatBelowTip, [](W& w, bool) { w.Flatten(X, Below); }},
      {kFlatten, "Command4", "Flat X >", kFlatAboveTip, [](W& w, bool) { w.Flatten(X, Above); }},
      {kFlatten, "Command5", "Flat Y <", kFlatBelowTip, [](W& w, bool) { w.Flatten(Y, Below); }},
      {kFlatten, "Command7", "Flat Y >", kFlatAboveTip, [](W& w, bool) { w.Flatten(Y, Above); }},
      {kFlatten, "Command2", "Flat Z <", kFlatBelowTip, [](W& w, bool) { w.Flatten(Z, Below); }},
      {kFlatten, "Command3", "Flat Z >", kFlatAboveTip, [](W& w, bool) { w.Flatten(Z, Above); }},

      {kRoughen, "Command11", "Roughen", kRoughenTip, [](W& w, bool) { w.RoughenPoints(); }},
      {kShake, "Command8", "Rnd Amnt", kShakeTip, [](W& w, bool r) { w.ShakeTheRings(r); }, {}, kTakesSides},

      {kBulge, "Command30", "Add/Sub", kAddTip,
       [](W& w, bool r) { w.BulgePoints(E::Add, Reach::Radius, r ? -1 : 1); }, {}, kTakesSides},
      {kBulge, "Command31", "Mult", kMultTip,
       [](W& w, bool r) { w.BulgePoints(E::Multiply, Reach::Radius, w.Factor(r)); }, {}, kTakesSides},
      {kBulge, "Command32", "exp", kExpTip,
       [](W& w, bool r) { w.BulgePoints(E::Power, Reach::Radius, w.Factor(r)); }, {}, kTakesSides},
      {kBox, "Command19", "Bulge", kAddTip,
       [](W& w, bool r) { w.BulgePoints(E::Add, Reach::Box, r ? -1 : 1); }, {}, kTakesSides},
      {kBox, "Command23", "Bulge", kMultTip,
       [](W& w, bool r) { w.BulgePoints(E::Multiply, Reach::Box, w.Factor(r)); }, {}, kTakesSides},
      {kBox, "Command45", "=", kSnapTip, [](W& w, bool) { w.BulgePoints(E::Snap, Reach::Box, 0); }},

      {kConform, "Command29", "Conform X", kConformXTip, [](W& w, bool r) { w.Conform(true, false, r); }, {},
       kTakesSides},
      {kConform, "Command33", "Conform Y", kConformYTip, [](W& w, bool r) { w.Conform(false, true, r); }, {},
       kTakesSides},
      {kConform, "Command21", "Conform  XY ", kConformXYTip, [](W& w, bool r) { w.Conform(true, true, r); },
       {}, kTakesSides},
      {kConform, "Command15", "Z", kLiftTip, [](W& w, bool r) { w.Lift(r); }, {}, kTakesSides},
      {kGrays, "Command22", "Incr", kIncrTip,
       [](W& w, bool r) { StepPair(w.HScroll15, w.HScroll16, r); }, kChangeOnly, kTakesSides},
      {kHeights, "Command24", "Incr", kIncrTip,
       [](W& w, bool r) { StepPair(w.HScroll20, w.HScroll21, r); }, kChangeOnly, kTakesSides},
      {kLayers, "Command25", "Incr", kIncrTip,
       [](W& w, bool r) { StepPair(w.HScroll22, w.HScroll23, r); }, kChangeOnly, kTakesSides},
      {kMold, "Command34", "1", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(1); }, kChangeOnly},
      {kMold, "Command35", "2", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(2); }, kChangeOnly},
      {kMold, "Command36", "3", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(3); }, kChangeOnly},
      {kMold, "Command37", "4", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(4); }, kChangeOnly},
      {kMold, "Command38", "5", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(5); }, kChangeOnly},
      {kMold, "Command39", "6", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(6); }, kChangeOnly},
      {kMold, "Command40", "7", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(7); }, kChangeOnly},
      {kMold, "Command41", "8", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(8); }, kChangeOnly},
      {kMold, "Command42", "9", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(9); }, kChangeOnly},
      {kMold, "Command43", "10", kMoldTip, [](W& w, bool) { w.LoadPictureNumber(10); }, kChangeOnly},

      {kPick, "Command20", "Set", kPickTip,
       [](W& w, bool r) { MarkEvery(w.app_.model, CurrentPart(w.app_), w.HScroll11.value(), !r); },
       kRefreshOnly, kTakesSides},
      {kCutoff, "Command18", "Angular cutoff", kCutoffTip, [](W& w, bool) { w.CutColumns(); }},
      {kNearest, "Command16", "Copy", kNearestTip,
       [](W& w, bool) { CopyNearest(w.app_.model, w.LoadEditParams().chosen, w.HScroll6.value()); }},
      {kConjoin, "Command13", "Conjoin triangles", kConjoinTip, [](W& w, bool) { w.Conjoin(); }},
      {kConjoin, "Command14", "Conjoin", kConjoinTip, [](W& w, bool) { w.Conjoin(); }},
      {kJoinEnds, "Command27", "F = L", kFirstToLastTip, [](W& w, bool) { w.JoinEnds(true); }},
      {kJoinEnds, "Command28", "L = F", kLastToFirstTip, [](W& w, bool) { w.JoinEnds(false); }},
      {kNames, "Command12", "Set", "either button: gives the Part this name",
       [](W& w, bool) { w.NamePart(); }, kRefreshOnly},

      {kCombine, "Command9", "Combine Parts", kCombineTip,
       [](W& w, bool r) {
         const int to = w.HScroll4.value();
         w.Copy(r ? w.AtOffsets(to) : w.Behind(to), CopyPart);
       },
       {}, kTakesSides},
      {kCopy, "Command44", "Copy to Part#", kCopyTip,
       [](W& w, bool) { w.Copy(w.AtOffsets(w.HScroll26.value()), CopyPart); }},
      {kCopy, "Command6", "Add to  Part #", kAddPartTip,
       [](W& w, bool) { w.Copy(w.Behind(w.HScroll26.value()), CopyPart); }},
      {kCopy, "Command17", "copy to part # Disjoint faces", kDisjointTip,
       [](W& w, bool) { w.Copy(w.AtOffsets(w.HScroll26.value()), CopyPartDisjoint); }},
  });
  return kButtons;
}

LayoutItem SpecialEffects1::ButtonsOf(std::string_view frame, std::vector<Control*> before) const {
  const auto rows = EffectButtons();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].frame == frame) before.push_back(effectButtons[i].get());
  }
  return Flow(std::move(before));
}

LayoutItem SpecialEffects1::EffectFrame(std::string_view frame, std::vector<LayoutItem> items) const {
  items.push_back(ButtonsOf(frame));
  return Frame(std::string(frame), std::move(items));
}

// One narrow column, so that the picture stays in sight.
LayoutItem SpecialEffects1::DeclareLayout() {
  std::vector<LayoutItem> items = DeformingFrames();
  for (LayoutItem& item : ConformingFrames()) items.push_back(std::move(item));
  for (LayoutItem& item : WeldingFrames()) items.push_back(std::move(item));
  for (LayoutItem& item : CopyingFrames()) items.push_back(std::move(item));
  return Column(std::move(items));
}

std::vector<LayoutItem> SpecialEffects1::DeformingFrames() {
  return {
      EffectFrame(kFlatten),
      EffectFrame(kRoughen, {BarRow(HScroll17), BarRow(HScroll18), BarRow(HScroll19)}),
      EffectFrame(kShake, {Labelled("Rnd Amnt", Text5), Labelled("Rnd seed value", Text16)}),
      Frame(std::string(kBulge),
            {Frame("Profiles Start/ End", {BarRow(HScroll13), BarRow(HScroll14)}),
             Row({Flow({&Check1, &Check2, &Check3}), Labelled("lower", Text29), Labelled("upper", Text30)}),
             BarRow(HScroll28), ButtonsOf(kBulge),
             EffectFrame(kBox, {Row({Single(Text31), Single(Text32), Single(Text33)})})}),
      Frame("Organic Distortion",
            {Single(Check8), BarRow(HScroll12), Flow({&Option1, &Option2, &Option3, &Option4})}),
  };
}

std::vector<LayoutItem> SpecialEffects1::ConformingFrames() {
  return {
      EffectFrame(kMold),
      EffectFrame(kConform, {EffectFrame(kGrays, {BarRow(HScroll15), BarRow(HScroll16)}),
                             EffectFrame(kHeights, {BarRow(HScroll20), BarRow(HScroll21)}),
                             EffectFrame(kLayers, {BarRow(HScroll23), BarRow(HScroll22)}),
                             Frame("Mult Amount per Conform Click", {BarRow(HScroll24), BarRow(HScroll25)}),
                             BarRow(HScroll2)}),
  };
}

std::vector<LayoutItem> SpecialEffects1::WeldingFrames() {
  return {
      Frame("Combine points", {BarRow(HScroll3), Flow({&Command10})}),
      EffectFrame(kConjoin),
      Row({Stretching(Single(ProgressBar1)), Single(Label8)}),
      EffectFrame(kJoinEnds),
      EffectFrame(kPick, {BarRow(HScroll11)}),
      EffectFrame(kCutoff, {BarRow(HScroll9)}),
  };
}

std::vector<LayoutItem> SpecialEffects1::CopyingFrames() {
  return {
      EffectFrame(kCopy, {BarRow(HScroll31), BarRow(HScroll26)}),
      EffectFrame(kCombine,
                  {BarRow(HScroll4), BarRow(HScroll1), BarRow(HScroll7), BarRow(HScroll8), Single(Check4)}),
      EffectFrame(kNearest, {BarRow(HScroll6)}),
      EffectFrame(kNames, {BarRow(HScroll5), Single(Text8)}),
  };
}

}  // namespace pelorium

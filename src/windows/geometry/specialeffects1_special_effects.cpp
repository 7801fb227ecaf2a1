// "Special Effects".
#include "windows/geometry/specialeffects1_special_effects.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "geometry/angular_cutoff.h"
#include "geometry/brush.h"
#include "geometry/conjoin.h"
#include "geometry/join_ends.h"
#include "geometry/join_points.h"
#include "geometry/roughen.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/image_files.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kPictureRow = -637;      // pan Y that lays the origin onto the row of the picture where Y is 0
constexpr double kRadiiPerWidth = 20;  // brushes of radius 1 beside each other over half the view

}  // namespace

SpecialEffects1::SpecialEffects1(App& app) : ToolWindow(app, "specialeffects1", "Special Effects") {
  MakeButtons();
  BindBars();
  OnEdit(Command10, [this] { Command10_Click(); });
  app_.view->form36.mouse.onBrush = [this](const BrushTouch& touch) { Distort(touch); };
  SetLayout(DeclareLayout());
}

void SpecialEffects1::MakeButtons() {
  for (const EffectButton& row : EffectButtons()) {
    effectButtons.push_back(std::make_unique<PushButton>(*this, row.name, row.caption, row.toolTip));
    effectButtons.back()->actsOnMouseDown = row.takesSides;
    OnEdit(
        *effectButtons.back(), [this, &row](const Click& click) { row.act(*this, click.IsRight()); },
        row.rule);
  }
}

void SpecialEffects1::BindBars() {
  for (ScrollBar* layers : {&HScroll22, &HScroll23}) {
    OnEdit(
        *layers, [this] { ChooseLayers(); }, kChangeOnly);
  }
  HScroll1.onChange = [this] { ShowOffsets(); };
  HScroll31.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll31.value()); };
}

void SpecialEffects1::PartChosen() { HScroll31.SetValue(CurrentPart(app_)); }

SpecialEffects1::EffectParams SpecialEffects1::LoadEditParams() const {
  EffectParams params{Chosen(app_), Origin(app_)};
  params.chosen.step = app_.view->form5.HScroll9.value();
  return params;
}

int SpecialEffects1::RingWidth() const { return app_.geometry->revolveprof.HScroll10.value() + 1; }

void SpecialEffects1::Flatten(Axis axis, FlatSide side) {
  const EffectParams params = LoadEditParams();
  FlattenChosen(app_.model, params.chosen, axis, side, Coordinate(params.origin, axis));
}

void SpecialEffects1::RoughenPoints() {
  Roughen(app_.model, LoadEditParams().chosen, {HScroll17.Shown(), HScroll18.Shown(), HScroll19.Shown()},
          app_.random);
}

void SpecialEffects1::ShakeTheRings(bool isBack) {
  ShakeRings(app_.model, LoadEditParams().chosen, {RingWidth(), Text5.Number(), Text16.Number(), isBack},
             app_.random);
}

void SpecialEffects1::BulgePoints(BulgeEffect effect, Reach reach, double amount) {
  BulgeSettings settings;
  settings.chosen = Chosen(app_);
  settings.firstProfile = HScroll13.value();
  settings.lastProfile = HScroll14.value();
  settings.radius = HScroll28.Shown();
  if (reach == Reach::Box) settings.box = {Text31.Number(), Text32.Number(), Text33.Number()};
  settings.alongX = Check1.value();
  settings.alongY = Check2.value();
  settings.alongZ = Check3.value();
  settings.effect = effect;
  settings.amount = amount;
  Bulge(app_.model, settings);
}

// The view shows the model over the pixels that shape it.
const Picture& SpecialEffects1::LayViewOnPicture() {
  Form36& view = app_.view->form36;
  view.VScroll1.SetValue(kPictureRow);
  view.HScroll1.SetValue(0);
  return view.Picture2.picture();
}

ConformRange SpecialEffects1::ReadConformRange() const {
  return {Chosen(app_), HScroll16.Shown(), HScroll15.Shown(), HScroll21.Shown(), HScroll20.Shown()};
}

void SpecialEffects1::Conform(bool alongX, bool alongY, bool isRight) {
  const Picture& picture = LayViewOnPicture();
  const double factor = (isRight ? HScroll24 : HScroll25).Shown();
  ConformToGray(app_.model, picture, ReadConformRange(), {alongX, alongY, factor, Origin(app_)});
}

void SpecialEffects1::Lift(bool isRight) {
  const Picture& picture = LayViewOnPicture();
  LiftToGray(app_.model, picture, ReadConformRange(), isRight ? -HScroll2.Shown() : HScroll2.Shown());
}

void SpecialEffects1::LoadPictureNumber(int number) { LoadNumberedPicture(app_, number); }

// Layers past the last point make an empty choice.
void SpecialEffects1::ChooseLayers() {
  const int width = PointsPerLayer(app_), highest = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  Form5& edit = app_.view->form5;
  edit.HScroll20.SetValueWidening(HScroll23.value() * width + 1);
  edit.HScroll25.SetValueWidening(std::min(highest, (HScroll22.value() + 1) * width));
}

// Each end is held in its own limits, so that a pair that comes to the end of its bars closes up.
void SpecialEffects1::StepPair(ScrollBar& upper, ScrollBar& lower, bool isBack) {
  const double difference = upper.Shown() - lower.Shown(), by = isBack ? -difference : difference;
  for (ScrollBar* bar : {&upper, &lower}) bar->SetValue(bar->Clamped(bar->Shown() + by));
}

void SpecialEffects1::Distort(const BrushTouch& touch) {
  if (!Check8.value() || IsProfileViewChosen(app_)) return;
  const MovedAxes moves = EnabledMoves(app_);
  const double across = moves.across ? touch.step.d1 : 0, up = moves.up ? touch.step.d2 : 0;
  BrushStroke stroke;
  stroke.part = CurrentPart(app_);
  stroke.lastPoint = PointRangeEnd(app_);
  stroke.at = Origin(app_);
  Coordinate(stroke.at, touch.axes.across) = touch.x;
  Coordinate(stroke.at, touch.axes.up) = touch.y;
  stroke.measuresX = !Option4.value();
  stroke.measuresY = !Option3.value();
  stroke.measuresZ = !Option2.value();
  stroke.radius =
      HScroll12.Shown() * std::abs(app_.view->form36.Picture1.measures().ScaleWidth()) / kRadiiPerWidth;
  if (touch.step.isRight) {
    Coordinate(stroke.push, touch.axes.out) = up;
  } else {
    Coordinate(stroke.push, touch.axes.across) = across;
    Coordinate(stroke.push, touch.axes.up) = up;
  }
  Brush(app_.model, stroke);
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void SpecialEffects1::CutColumns() {
  const EffectParams params = LoadEditParams();
  CutAngularly(app_.model, params.chosen, params.origin, HScroll9.Shown());
}

void SpecialEffects1::Conjoin() {
  const int part = CurrentPart(app_);
  PartHeader& header = app_.model.Part(part);
  Label8.SetCaption("Evaluating Faces");
  ProgressBar1.SetMax(header.maxfaces);
  ConjoinCorners(app_.model, part);
  ProgressBar1.SetValue(header.maxfaces);
  Label8.SetCaption("Evaluating Pts");
  SwitchOffUnused(app_.model, part);
  header.grid.reset();
}

void SpecialEffects1::JoinEnds(bool firstMoves) {
  JoinLayerEnds(app_.model, CurrentPart(app_), RingWidth(),
                firstMoves ? JoinedLayer::First : JoinedLayer::Last);
}

void SpecialEffects1::Command10_Click() {
  JoinSettings settings;
  settings.part = CurrentPart(app_);
  settings.tolerance = HScroll3.value();
  settings.moveFaceCorners = !CornersFollow(app_);  // else the sync brings them along
  ProgressBar1.SetMax(ReadModel(app_).Part(settings.part).maxpoints);
  const int moved = JoinPoints(app_.model, settings, [this](int point) { ProgressBar1.SetValue(point); });
  HScroll3.box.SetText(std::to_string(moved));
}

void SpecialEffects1::NamePart() { app_.model.Part(HScroll5.value()).PartName = Text8.text(); }

void SpecialEffects1::ShowOffsets() {
  const PartHeader& part = ReadModel(app_).Part(HScroll1.value());
  HScroll7.SetValue(HScroll7.Clamped(part.maxpoints));
  HScroll8.SetValue(HScroll8.Clamped(part.maxfaces));
}

PartCopy SpecialEffects1::AtOffsets(int part) const {
  return {CurrentPart(app_), part, HScroll7.value(), HScroll8.value(), Check4.value()};
}

PartCopy SpecialEffects1::Behind(int part) const {
  PartCopy copy = Appended(app_.model, CurrentPart(app_), part);
  copy.copiesPoints = Check4.value();
  return copy;
}

void SpecialEffects1::Copy(const PartCopy& copy, void (*write)(ModelStore&, const PartCopy&)) {
  write(app_.model, copy);
  if (copy.to == CurrentPart(app_)) FollowCounts(app_);
}

}  // namespace pelorium

// "Edit Geometry".
#include "windows/geometry/specialeffects5_edit_geometry.h"

#include "facetools/choose_faces.h"
#include "facetools/switch_faces.h"
#include "geometry/choose_points.h"
#include "geometry/edit_chosen_points.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/shell/raised.h"
#include "windows/shell/readers.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/refresh_views.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

SpecialEffects5::SpecialEffects5(App& app)
    : ToolWindow(app, "specialeffects5", "Edit Geometry"),
      drag_(app, Picture1, [this] { return DragMode(); }),
      rotation_(app, Picture2, [] { return GeometryMode::Rotate; }),
      scaling_(app, Picture3, [] { return GeometryMode::Scale; }),
      originMove_(app, Picture4, [] { return GeometryMode::MoveOrigin; }),
      picking_(app, Picture5, [] { return GeometryMode::PickPoints; }) {
  BindParameters();
  BindPicks();
  BindFaces();
  BindEdits();
  for (ScrollBar* bar : {&HScroll4, &HScroll5}) app_.history->held.Carry(*bar);
  SetLayout(DeclareLayout());
}

void SpecialEffects5::Bind(PushButton& button, std::function<void(bool isLeft)> change,
                           const EditRule& rule) {
  OnEdit(
      button, [change = std::move(change)](const Click& click) { change(!click.IsRight()); }, rule);
}

void SpecialEffects5::BindParameters() {
  HScroll1.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll1.value()); };
  Check1.onClick = [this](const Click&) { app_.view->form51.Check7.SetValue(Check1.value()); };
  for (OptionButton* option : {&Option7, &Option8, &Option9, &Option10, &Option11}) {
    option->onClick = [this](const Click&) { drag_.ShowView(GatherViewSettings(app_)); };
  }
}

void SpecialEffects5::BindPicks() {
  ModelStore& model = app_.model;
  OnEdit(
      HScroll9, [this] { HScroll9_Change(); }, kRefreshOnly);
  for (ScrollBar* bar : {&VScroll1, &VScroll2})
    OnEdit(
        *bar, [this] { PickByAxis(); }, kRefreshOnly);
  OnEdit(
      Command5, [this] { Command5_Click(); }, kRefreshOnly);
  Bind(Command6, [this](bool on) { Command6_Click(on); });
  Bind(Command7, [this, &model](bool on) {
    MarkCorners(model, CurrentPart(app_), FaceRangeStart(app_), FaceRangeEnd(app_), on);
  });
  Bind(Command3, [this, &model](bool on) {
    MarkLayers(model, CurrentPart(app_), {HScroll3.value(), HScroll8.value(), PointsPerLayer(app_)}, on);
  });
  Bind(Command4, [this, &model](bool on) {
    MarkPoints(model, CurrentPart(app_), PointRangeStart(app_), PointRangeEnd(app_), on);
    SwitchFaces(model, CurrentPart(app_), FaceRangeStart(app_), FaceRangeEnd(app_), on);
  });
  Bind(Command9, [this, &model](bool) {
    InvertPoints(model, CurrentPart(app_), PointRangeStart(app_), PointRangeEnd(app_));
  });
}

void SpecialEffects5::BindFaces() {
  ModelStore& model = app_.model;
  HScroll4.onChange = [this] { MoveFaceRange(HScroll4, app_.view->form51.HScroll7); };
  HScroll5.onChange = [this] { MoveFaceRange(HScroll5, app_.view->form51.HScroll5); };
  HScroll7.onChange = [this] { HScroll7_Change(); };
  Bind(Command1, [this, &model](bool on) { SwitchChosenFaces(model, Chosen(app_), on); });
  Bind(Command8, [this, &model](bool on) {
    SwitchFaces(model, CurrentPart(app_), HScroll4.value(), HScroll5.value(), on);
  });
  Bind(Command2, [this, &model](bool) {
    GroupFaceRange(model, CurrentPart(app_), FaceRangeStart(app_), FaceRangeEnd(app_), HScroll7.value());
  });
  Bind(Command10, [this, &model](bool) { GroupChosenFaces(model, Chosen(app_), HScroll7.value()); });
  OnEdit(
      Command11, [this] { Command11_Click(); }, kChangeOnly);
}

void SpecialEffects5::BindEdits() {
  using enum Axis;
  ModelStore& model = app_.model;
  for (auto [button, axis] : {std::pair{&Command12, Y}, {&Command13, X}, {&Command14, Z}}) {
    Bind(
        *button, [this, &model, axis](bool) { MirrorChosen(model, Chosen(app_), axis, Origin(app_)); },
        EditRule{});
  }
  for (auto [button, axis] : {std::pair{&Command15, X}, {&Command16, Y}, {&Command17, Z}}) {
    Bind(
        *button,
        [this, &model, axis](bool forward) {
          MoveChosen(model, Chosen(app_), axis, forward ? MoveAmount(app_) : -MoveAmount(app_));
        },
        EditRule{});
  }
  Command18.onClick = [this](const Click& click) {
    app_.view->form36.Command12.Press(click.IsRight() ? MouseButton::Right : MouseButton::Left);
  };
}

GeometryMode SpecialEffects5::DragMode() const {
  if (Option8.value()) return GeometryMode::Rotate;
  if (Option9.value()) return GeometryMode::Scale;
  if (Option10.value()) return GeometryMode::PickPoints;
  return Option11.value() ? GeometryMode::MoveOrigin : GeometryMode::Move;
}

Axis SpecialEffects5::PickAxis() const {
  return Option4.value() ? Axis::X : Option5.value() ? Axis::Y : Axis::Z;
}

void SpecialEffects5::PartChosen() { HScroll1.SetValue(CurrentPart(app_)); }

void SpecialEffects5::ViewOptionChosen() { Check1.SetValue(app_.view->form51.Check7.value()); }

void SpecialEffects5::ViewsRefreshed(const ViewSettings& settings) {
  if (!visible()) return;
  if (Option10.value()) drag_.ShowView(settings);
  picking_.ShowView(settings);
}

// The limits of the View Options are those of the Part's faces. The values are taken before a new limit can
// pull them, and the bars write nothing back meanwhile.
void SpecialEffects5::FaceRangeChosen() {
  if (isFollowing_) return;
  {
    const Raised following(isFollowing_);
    HScroll4.SetMax(app_.view->form51.HScroll7.max());
    HScroll4.SetValue(FaceRangeStart(app_));
    HScroll5.SetMax(app_.view->form51.HScroll5.max());
    HScroll5.SetValue(FaceRangeEnd(app_));
  }
  Autopick();
}

void SpecialEffects5::CountsChanged(Counts which) {
  if (which != Counts::Points) FaceRangeChosen();
}

void SpecialEffects5::CountsRestored() {
  HScroll4.ShowMax(app_.view->form51.HScroll7.max());
  HScroll5.ShowMax(app_.view->form51.HScroll5.max());
}

void SpecialEffects5::MoveFaceRange(ScrollBar& bar, ScrollBar& shared) {
  if (isFollowing_) return;
  {
    const Raised following(isFollowing_);
    shared.SetValueWidening(bar.value());
  }
  Autopick();
}

void SpecialEffects5::Autopick() {
  if (Check2.value() && app_.automaticActionsHeld == 0) Command5.Press();
}

void SpecialEffects5::PickByAxis() {
  MarkOnlyBetween(app_.model, CurrentPart(app_), PickAxis(), VScroll1.value(), VScroll2.value());
}

void SpecialEffects5::HScroll7_Change() {
  if (Check5.value() && app_.automaticActionsHeld == 0) Command6.Press();
}

void SpecialEffects5::HScroll9_Change() {
  MarkWithin(app_.model, CurrentPart(app_), Origin(app_), HScroll9.Shown(), Option1.value());
}

void SpecialEffects5::Command5_Click() {
  const int part = CurrentPart(app_);
  MarkPoints(app_.model, part, 1, ReadModel(app_).Part(part).maxpoints, false);
  MarkCorners(app_.model, part, FaceRangeStart(app_), FaceRangeEnd(app_), true);
}

void SpecialEffects5::Command6_Click(bool on) {
  const int part = CurrentPart(app_);
  if (on) MarkPoints(app_.model, part, 1, ReadModel(app_).Part(part).maxpoints, false);
  MarkCorners(app_.model, part, FaceRangeStart(app_), FaceRangeEnd(app_), on, HScroll7.value());
}

// The points of the group are chosen once, whether the bar moves for it or not.
void SpecialEffects5::Command11_Click() {
  const auto group = GroupOfPoint(app_.model, CurrentPart(app_), ChosenPoint(app_));
  if (!group) return;
  const HoldAutomaticActions hold(app_);
  HScroll7.SetValue(*group);
  if (Check5.value()) Command6.Press();
}

// One narrow column, so that the view stays in sight: the pictures first, then the choices.
LayoutItem SpecialEffects5::DeclareLayout() {
  std::vector<LayoutItem> items = DragFrames();
  for (LayoutItem& item : ChoiceFrames()) items.push_back(std::move(item));
  return Column(std::move(items));
}

std::vector<LayoutItem> SpecialEffects5::DragFrames() {
  return {
      Frame("Part", {BarRow(HScroll1), Row({Flow({&Check3, &Check1, &Check4}), Labelled("Sub G", Text3)})}),
      Frame("Move and Edit effect window",
            {Flow({&Option7, &Option8, &Option9, &Option10, &Option11}),
             Row({Single(Picture1), Column({Frame("Mirror", {Flow({&Command12, &Command13, &Command14})}),
                                            Frame("Step", {Flow({&Command15, &Command16, &Command17})})})})}),
      Compact(Row({Frame("Rotate", {Single(Picture2)}), Frame("Scale", {Single(Picture3)}),
                   Frame("Move Origin", {Single(Picture4)})})),
      Compact(
          Row({Frame("Pick pts", {Single(Picture5)}),
               Column({Frame("Area Select Options", {Flow({&Option2, &Option3})}), Flow({&Command18})})})),
      Frame("Pick Points Area Size", {BarRow(HScroll2), BarRow(HScroll6)}),
  };
}

std::vector<LayoutItem> SpecialEffects5::ChoiceFrames() {
  return {
      Frame("Points", {Flow({&Command4, &Command9, &Command1})}),
      Frame("Faces", {BarRow(HScroll4), BarRow(HScroll5), Flow({&Check2, &Command5, &Command7, &Command8})}),
      Frame("Group",
            {BarRow(HScroll7), Single(Check5), Flow({&Command6, &Command2, &Command10, &Command11})}),
      Frame("Pts by Layer        Start                                    End",
            {BarRow(HScroll3), BarRow(HScroll8), Flow({&Command3})}),
      Frame("Pick Points Based on 3d dist from Origin", {Flow({&Option1, &Option12}), BarRow(HScroll9)}),
      Frame("pick points to be on (selected based on x y or z aboslute location--low to high range",
            {Flow({&Option4, &Option5, &Option6}), BarRow(VScroll1), BarRow(VScroll2)}),
  };
}

}  // namespace pelorium

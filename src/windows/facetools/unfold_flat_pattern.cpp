// "Unfold".
#include "windows/facetools/unfold_flat_pattern.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "facetools/switch_faces.h"
#include "facetools/unfold.h"
#include "geometry/edit_chosen_points.h"
#include "interchange/svg_pattern.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kSingleStep = 1, kPairStep = 2;
constexpr int kFirstWithPairBefore = 3;

void SetStep(ScrollBar& bar, int step) { bar.smallChange = bar.largeChange = step; }

}  // namespace

Unfold::Unfold(App& app) : ToolWindow(app, "unfold", "Unfold") {
  BindChoice();
  BindFlattening();
  BindOrigin();
  BindMoves();
  BindSwitches();
  List1.SetItems({"A4", "A3", "Letter", "fit"});
  List1.SetIndex(0);
  OnFile(Command26, [this] { Command26_Click(); });
  SetLayout(DeclareLayout());
}

void Unfold::BindChoice() {
  VScroll2.onChange = [this] { VScroll2_Change(); };
  for (BoxedBar* bar : {&HScroll1, &HScroll2}) {
    OnEdit(
        *bar, [this] { ChooseFaces(HScroll2.value(), HScroll1.value()); }, kChangeOnly);
  }
  Check2.onClick = [this](const Click&) { Check2_Click(); };
  OnEdit(Command11, [this] { UpdateLimits(); }, {.syncs = false, .refreshes = false, .holds = true});
  Command12.onClick = [this](const Click&) { app_.links.pressMenuItem("disjoinit"); };
}

void Unfold::BindFlattening() {
  OnEdit(
      Command1, [this] { Command1_Click(); }, kChangeOnly);
  OnEdit(
      Command8, [this] { Command8_Click(); }, kChangeOnly);
  OnEdit(
      Command3,
      [this] {
        ShowAngles();
        ChooseFaces(Face(), Face() + 1);
      },
      kChangeOnly);
  OnEdit(Command2, [this] { MoveToOrigin(app_.model, CurrentPart(app_), Face(), Origin(app_)); });
  const auto measure = [this] {
    Text4.SetText(GeneralForm(AngleToPairBefore(app_.model, CurrentPart(app_), Face())));
  };
  OnEdit(
      Command10,
      [this, measure] {
        if (Face() >= kFirstWithPairBefore) measure();
      },
      kChangeOnly);
  OnEdit(Command9, [this, measure](const Click& click) {
    if (Face() < kFirstWithPairBefore) return;
    measure();
    TurnChosenPoints(Axis::X, Axis::Y, click.IsRight() ? -Text4.Number() : Text4.Number());
  });
}

void Unfold::BindOrigin() {
  struct Place {
    PushButton& button;
    int further;  // from face f
    Vec3 (*of)(const FaceCorners&);
  };
  const auto a = [](const FaceCorners& f) { return f.a; };
  const auto b = [](const FaceCorners& f) { return f.b; };
  const auto c = [](const FaceCorners& f) { return f.c; };
  for (const Place& p : std::initializer_list<Place>{{Command4, 0, a},
                                                     {Command5, 0, b},
                                                     {Command6, 0, c},
                                                     {Command7, 0, CentreOf},
                                                     {Command13, 1, a},
                                                     {Command14, 1, b},
                                                     {Command15, 1, c},
                                                     {Command16, 1, CentreOf}}) {
    OnEdit(
        p.button,
        [this, of = p.of, further = p.further] {
          SetOrigin(app_, of(CornersOf(app_.model, CurrentPart(app_), Face() + further)));
        },
        kRefreshOnly);
  }
  OnEdit(
      Command23, [this] { SetOrigin(app_, CentreOfPair(app_.model, CurrentPart(app_), Face())); },
      kRefreshOnly);
}

void Unfold::BindMoves() {
  using enum Axis;
  const auto amount = [this](const Click& click) {
    return click.IsRight() ? -Text6.Number() : Text6.Number();
  };
  for (auto [button, axis] : {std::pair{&Command18, X}, {&Command19, Y}, {&Command20, Z}}) {
    OnEdit(*button, [this, axis, amount](const Click& click) {
      MoveChosen(app_.model, Chosen(app_), axis, amount(click));
    });
  }
  struct Plane {
    PushButton& button;
    Axis p, q;
  };
  for (const Plane& t :
       std::initializer_list<Plane>{{Command17, X, Y}, {Command21, X, Z}, {Command22, Y, Z}}) {
    OnEdit(t.button,
           [this, p = t.p, q = t.q, amount](const Click& click) { TurnChosenPoints(p, q, amount(click)); });
  }
}

void Unfold::BindSwitches() {
  OnEdit(
      Command24,
      [this](const Click& click) {
        SwitchFaces(app_.model, CurrentPart(app_), Face(), Face() + (IsPair() ? 1 : 0), !click.IsRight());
      },
      kRefreshOnly);
  OnEdit(
      Command25,
      [this](const Click& click) {
        SwitchFaces(app_.model, CurrentPart(app_), HScroll2.value(), HScroll1.value(), !click.IsRight());
      },
      kRefreshOnly);
}

void Unfold::Show() {
  Command11.Press();
  ToolWindow::Show();
}

void Unfold::UpdateLimits() {
  const int last = app_.view->form51.HScroll5.max();
  for (BoxedBar* bar : {&HScroll1, &HScroll2, &VScroll2}) bar->SetMax(std::max(bar->min(), last));
}

// The face range of the View Options, and the points of its faces; what lies past its limits is left out.
void Unfold::ChooseFaces(int first, int last) {
  Form51& options = app_.view->form51;
  options.HScroll5.SetValue(options.HScroll5.Clamped(last));
  options.HScroll7.SetValue(options.HScroll7.Clamped(first));
  app_.geometry->specialeffects5.Command5.Press();
}

void Unfold::VScroll2_Change() {
  Edit(
      VScroll2,
      [this] {
        ChooseFaces(Face(), IsPair() ? Face() + 1 : Face());
        if (Check1.value() && app_.automaticActionsHeld == 0) Command1.Press();
      },
      kChangeOnly);
}

// Back to pairs, the face is the first of its pair; that alone lays nothing flat.
void Unfold::Check2_Click() {
  for (BoxedBar* bar : {&VScroll2, &HScroll1, &HScroll2}) SetStep(*bar, IsPair() ? kPairStep : kSingleStep);
  if (!IsPair() || Face() % 2 != 0) return;
  const HoldAutomaticActions hold(app_);
  VScroll2.SetValue(VScroll2.Clamped(Face() - 1));
}

void Unfold::FinishStep() {
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void Unfold::Command1_Click() {
  const int part = CurrentPart(app_);
  const Vec3 origin = Origin(app_);
  const double elevation = VScroll1.Shown();
  const LaidPair laid = FlattenPair(app_.model, part, Face(), IsPair(), origin);
  PlaceTriangle(app_.model, part, Face(), laid.first, elevation);
  if (IsPair()) PlaceTriangle(app_.model, part, Face() + 1, laid.second, elevation);
  FinishStep();
  ShowPreview(laid);
  if (IsPair()) Command8.Press();
}

void Unfold::ShowPreview(const LaidPair& laid) {
  constexpr Colour kFirstSide = Rgb(250, 10, 10), kLastSide = Rgb(10, 250, 10),
                   kMiddleSide = Rgb(10, 10, 250);
  const ViewPans pan = ViewPan(app_);
  std::vector<OverlayShape> lines;
  const auto add = [&](const LaidTriangle& triangle) {
    const auto line = [&](const FlatPlace& from, const FlatPlace& to, Colour colour) {
      const double x = triangle.base.x + pan.x, y = triangle.base.y + pan.y;
      lines.push_back({static_cast<float>(x + from.x), static_cast<float>(y + from.y),
                       static_cast<float>(x + to.x), static_cast<float>(y + to.y), colour});
    };
    line({}, triangle.shape.b, kFirstSide);
    line(triangle.shape.c, {}, kLastSide);
    line(triangle.shape.c, triangle.shape.b, kMiddleSide);
  };
  add(laid.first);
  if (IsPair()) add(laid.second);
  app_.view->form36.mouse.ShowPreview(std::move(lines));
}

void Unfold::ShowAngles() {
  const PairAngles angles = MeasurePair(app_.model, CurrentPart(app_), Face());
  Label2.SetCaption(GeneralForm(angles.first));
  Label3.SetCaption(GeneralForm(angles.second));
}

// The first triangle turns until its edge stands along Y, and from there onto the second one's. The origin
// then waits where the pair joins the strip.
void Unfold::Command8_Click() {
  ShowAngles();
  ChooseFaces(Face(), Face());
  for (const double degrees : {Val(Label2.caption()), -Val(Label3.caption())}) {
    TurnChosenPoints(Axis::X, Axis::Y, degrees);
    FinishStep();
  }
  ChooseFaces(Face(), Face() + 1);
  if (Face() >= kFirstWithPairBefore) {
    SetOrigin(app_, CornersOf(app_.model, CurrentPart(app_), Face() - 2).b);
  }
  RefreshViews(app_);
}

void Unfold::TurnChosenPoints(Axis p, Axis q, double degrees) {
  TurnPoints(app_.model, Chosen(app_), {p, q, degrees * kRadiansPerDegree}, Origin(app_));
}

PatternSettings Unfold::ReadPatternSettings() const {
  PatternSettings s;
  s.part = CurrentPart(app_);
  s.firstFace = HScroll2.value();
  s.lastFace = HScroll1.value();
  s.elevation = VScroll1.Shown();
  s.mmPerUnit = Text7.Number();
  if (Check3.value()) s.tabWidth = Text8.Number();
  s.faceNumbers = Check4.value();
  return s;
}

// What cannot become a pattern is told before a name is asked for.
void Unfold::Command26_Click() {
  const FlatPattern pattern = MakeFlatPattern(app_.model, ReadPatternSettings());
  const PatternPages pages = LayOutPages(pattern, static_cast<PatternPaper>(std::max(0, List1.index())));
  const auto name =
      AskFileName(app_, {true, "Save pattern as SVG", "patterns", "SVG drawing (*.svg)|*.svg", "*.svg"});
  if (name.empty()) return;
  for (int page = 0; page < pages.count(); ++page) {
    std::filesystem::path file = name;
    if (pages.count() > 1) {
      file.replace_filename(name.stem().string() + "-" + std::to_string(page + 1) +
                            name.extension().string());
    }
    SaveFile(app_, file, [&](TextWriter& out) { WriteSvgPage(pattern, pages, page, out); });
  }
}

// One narrow column, in the order of the work.
LayoutItem Unfold::DeclareLayout() {
  return Column({
      Frame("Face", {BarRow(VScroll2), Flow({&Check1, &Check2}), Flow({&Command12, &Command11})}),
      Frame("Flatten", {BarRow(VScroll1), Flow({&Command1, &Command8, &Command3}),
                        Flow({&FirstTriangle, &Label2, &SecondTriangle, &Label3})}),
      Frame("Onto the pair before", {Labelled("Spin Amnt", Text4), Flow({&Command2, &Command10, &Command9})}),
      Frame("Set Origin", {Row({Frame("1st Tri", {Flow({&Command4, &Command5, &Command6, &Command7})}),
                                Frame("2nd Tri", {Flow({&Command13, &Command14, &Command15, &Command16})})}),
                           Flow({&Command23})}),
      Frame("Move", {Labelled("Amnt", Text6),
                     Flow({&Command18, &Command19, &Command20, &Command17, &Command21, &Command22})}),
      Frame("Range", {BarRow(HScroll2), BarRow(HScroll1)}),
      Row({Frame("Face on/off", {Flow({&Command24})}), Frame("Range on/off", {Flow({&Command25})})}),
      Frame("Pattern", {Labelled("mm per unit", Text7), Single(List1),
                        Row({Single(Check3), Single(Text8), Single(Check4)}), Flow({&Command26})}),
  });
}

}  // namespace pelorium

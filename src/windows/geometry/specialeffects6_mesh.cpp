// "Create mesh/tesselated".
#include "windows/geometry/specialeffects6_mesh.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/numbers.h"
#include "core/part_operations.h"
#include "geometry/scatter_points.h"
#include "geometry/temp_points.h"
#include "views/draw_views.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/view_miniature.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/refresh_views.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kMostClicked = 3850;    // the triangles of one point fewer still fit into the table
constexpr double kPlainHeight = 300;  // of a point clicked on Picture4 when nothing else tells
constexpr int kFewestPoints = 3;      // of a random cloud
constexpr double kSeeds = 100000000;  // "Rnd" chooses among so many

// A count as typed: the whole part, held in what a Part can hold.
int CountIn(const TextBox& box) {
  return static_cast<int>(std::clamp(std::floor(box.Number()), 0.0, 1.0 * kMaxPoints));
}

}  // namespace

SpecialEffects6::SpecialEffects6(App& app) : ToolWindow(app, "specialeffects6", "Create mesh/tesselated") {
  BindParameters();
  BindPoints();
  BindGrid();
  SetLayout(DeclareLayout());
}

void SpecialEffects6::BindParameters() {
  HScroll1.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll1.value()); };
  HScroll37.onChange = [this] {
    app_.TessCount = HScroll37.value() + 1;
    Label5.SetCaption("totalpoints; " + std::to_string(HScroll37.value()));
  };
  Command5.onClick = [this](const Click&) {
    app_.TessCount = 1;
    Label5.SetCaption("totalpoints; 0");
  };
  Command9.onClick = [this](const Click&) {
    Text20.SetText(GeneralForm(std::floor(seeds_.Next() * kSeeds)));
  };
  Picture4.onMouseDown = [this](const MouseEvent& event) { Picture4_MouseDown(event); };
}

void SpecialEffects6::BindPoints() {
  Command1.actsOnMouseDown = true;
  OnEdit(Command7, [this] { Command7_Click(); });
  OnEdit(Command1, [this](const Click& click) { Command1_Click(!click.IsRight()); });
  OnEdit(Command2, [this] { Command2_Click(); });
  OnEdit(Command4, [this] { Command4_Click(); });
  OnEdit(
      Command10, [this] { Command10_Click(); }, kChangeOnly);
  OnEdit(
      Command11, [this] { SavePoints(app_.model, CurrentPart(app_)); }, kChangeOnly);
  OnEdit(Command12, [this] { Command12_Click(); });
}

// A box changes with its bar, and when it is typed into.
void SpecialEffects6::BindGrid() {
  for (TextBox* box : {&HScroll13.box, &HScroll12.box, &HScroll14.box, &HScroll15.box, &HScroll17.box,
                       &HScroll18.box, &HScroll19.box, &HScroll22.box, &HScroll23.box, &HScroll24.box,
                       &Text27, &Text28, &Text29, &Text30, &Text35, &Text37}) {
    box->onChange = [this] { AutoCreate(); };
  }
  for (auto [bar, label] : {std::pair{&HScroll27, &Label27},
                            {&HScroll30, &Label30},
                            {&HScroll32, &Label32},
                            {&HScroll34, &Label34}}) {
    bar->onChange = [this, bar, label] {
      label->SetCaption(std::to_string(bar->value()));
      AutoCreate();
    };
  }
  HScroll16.onChange = [this] { AutoCreate(); };
  OnEdit(Command3, [this] { Command3_Click(); });
}

void SpecialEffects6::AutoCreate() {
  if (Check3.value() && app_.automaticActionsHeld == 0) Command3.Press();
}

void SpecialEffects6::PartChosen() { HScroll1.SetValue(CurrentPart(app_)); }

void SpecialEffects6::ViewsRefreshed(const ViewSettings& settings) {
  if (visible()) ShowMesh(settings);
}

// The points and faces of the current Part alone, from above.
void SpecialEffects6::ShowMesh(ViewSettings settings) {
  Picture& area = Picture4.picture();
  FollowWholeView(app_, area, kAreaWidth);
  settings.mode = ViewMode::Top;
  settings.showWire = settings.showAllPoints = true;
  settings.showOtherParts = settings.showGrid = settings.showChosenPoints = false;
  settings.showProfile = settings.showOtherProfiles = false;
  DrawViews(app_.model, settings, area, app_.drawingFaults);
  Picture4.NotifyChanged();
}

void SpecialEffects6::Picture4_MouseDown(const MouseEvent& event) {
  Trapped(app_.faults, Picture4.FullName(), [&] {
    app_.view->form51.Option5.SetValue(true);
    AddPoint(std::floor(event.x) - ViewPan(app_).x, std::floor(event.y) - ViewPan(app_).y, kPlainHeight);
  });
}

void SpecialEffects6::AddPoint(double x, double y, std::optional<double> otherwise) {
  const int part = CurrentPart(app_);
  const int number = app_.TessCount >= 1 && app_.TessCount <= kMaxPoints ? app_.TessCount : 1;
  const int gray = app_.view->form36.ImageGrayAt(x, y);
  PointRec& point = app_.model.Points(part, number);
  const double z = Check1.value() ? HScroll2.Shown() : gray >= 0 ? gray : otherwise.value_or(point.Z);
  LayPoint(app_.model, part, number, Vec3{x, y, z});
  PartHeader& header = app_.model.Part(part);
  header.maxpoints = Narrow<std::int16_t>(number);
  header.grid.reset();
  Label5.SetCaption("totalpoints; " + std::to_string(number));
  app_.TessCount = number + 1 > kMostClicked ? 1 : number + 1;
  HScroll37.Show(number);
  FollowPoints(app_);
  if (Check2.value() && app_.TessCount > 1) Command7.Press();
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

TessellationSettings SpecialEffects6::ReadTessellation() const {
  TessellationSettings s;
  s.part = CurrentPart(app_);
  s.rule = Option2.value()   ? ElevationRule::Range
           : Option3.value() ? ElevationRule::Radius
           : Option4.value() ? ElevationRule::Distance
                             : ElevationRule::None;
  s.lowest = HScroll6.Shown();
  s.highest = HScroll7.Shown();
  s.distance = HScroll8.Shown();
  return s;
}

// The marks choose the points, and stay; what is off is switched on.
void SpecialEffects6::Command7_Click() {
  const TessellationSettings settings = ReadTessellation();
  const int part = settings.part, points = std::clamp(app_.TessCount - 1, 0, kMostTessellated);
  if (HScroll38.value() > 1) MarkOnlyEvery(app_.model, part, points, HScroll38.value());
  const int faces = Triangulate(app_.model, settings, points);
  Label5.SetCaption("Total Triangles " + std::to_string(faces));
  PartHeader& header = app_.model.Part(part);
  header.maxfaces = Narrow<std::int16_t>(faces);
  header.maxpoints = Narrow<std::int16_t>(points);
  for (int i = 1; i <= points; ++i) app_.model.Points(part, i).onoff = 1;
  for (FaceRec& face : FaceRange(app_.model, part, 1, faces)) face.onoff = 1;
  FollowMesh();
}

// All ranges follow the Part, which is no grid any more.
void SpecialEffects6::FollowMesh() {
  PartHeader& header = app_.model.Part(CurrentPart(app_));
  header.minpoints = header.minfaces = 1;
  header.grid.reset();
  FollowCounts(app_);
  app_.links.chooseFace(1);
}

// Points 1..`points` are there. Without "Auto Tesselate" the faces of what was there before go, unless they
// are to stay.
void SpecialEffects6::FinishPoints(int points, OptionButton& view, bool keepsFaces) {
  app_.TessCount = points + 1;
  if (Check2.value()) {
    Command7.Press();
  } else if (!keepsFaces) {
    app_.model.Part(CurrentPart(app_)).maxfaces = 0;
  }
  app_.model.Part(CurrentPart(app_)).maxpoints = Narrow<std::int16_t>(points);
  FollowMesh();
  view.SetValue(true);
}

void SpecialEffects6::Command1_Click(bool startsAnew) {
  RingSettings s;
  s.part = CurrentPart(app_);
  s.sides = HScroll3.value();
  s.radiusX = HScroll4.Shown();
  s.radiusY = HScroll5.Shown();
  s.centre = {Origin(app_).X, Origin(app_).Y, HScroll2.Shown()};
  const int next = LayRing(app_.model, s, startsAnew ? 1 : app_.TessCount);
  FinishPoints(next - 1, app_.view->form51.Option5, !startsAnew);
}

int SpecialEffects6::HeldPointCount() {
  const int count = std::clamp(CountIn(Text6), kFewestPoints, kMostTessellated);
  if (count != Text6.Number()) Text6.SetText(std::to_string(count));
  return count;
}

void SpecialEffects6::Command2_Click() {
  CloudSettings s;
  s.part = CurrentPart(app_);
  s.seed = Text20.Number();
  s.width = Text4.Number();
  s.height = Text5.Number();
  s.offset = {ViewPan(app_).x, ViewPan(app_).y, HScroll2.Shown()};
  FinishPoints(ScatterCloud(app_.model, s, HeldPointCount()), app_.view->form51.Option5);
}

void SpecialEffects6::Command4_Click() {
  HeldPointCount();
  const int points = PointsOfProfiles(app_.model, CurrentPart(app_), HScroll11.value(), HScroll10.value());
  FinishPoints(points, app_.view->form51.Option3);
}

MeshGridSettings SpecialEffects6::ReadGrid() const {
  MeshGridSettings s;
  s.part = CurrentPart(app_);
  s.columns = CountIn(HScroll12.box);
  s.rows = CountIn(HScroll13.box);
  s.firstColumn = Text27.Number() + 1;
  s.firstRow = Text28.Number() + 1;
  s.spacingX = HScroll14.Number();
  s.spacingY = HScroll15.Number();
  s.height = HScroll2.Shown();
  s.alongRows = {Text30.Number(), HScroll17.Number(), HScroll18.Number(), HScroll19.Number()};
  s.alongColumns = {Text29.Number(), HScroll22.Number(), HScroll23.Number(), HScroll24.Number()};
  s.rowTimesColumn = HScroll27.value();
  s.columnTimesRow = HScroll30.value();
  s.rowProfile = HScroll32.value();
  s.rowFactor = Text37.Number();
  s.columnProfile = HScroll34.value();
  s.columnFactor = Text35.Number();
  return s;
}

// The bars of Revolve Profile only show the grid. They come first: with "Auto Revolve" they build their own
// body.
void SpecialEffects6::Command3_Click() {
  const MeshGridSettings settings = ReadGrid();
  RevolveProf& revolve = app_.geometry->revolveprof;
  revolve.HScroll10.SetValue(revolve.HScroll10.Clamped(settings.columns - 1));
  revolve.HScroll22.SetValue(revolve.HScroll22.Clamped(settings.rows));
  const LaidGrid grid = LayMeshGrid(app_.model, settings);
  const int points = grid.width * grid.rows;
  app_.TessCount = points + 1;
  PartHeader& header = app_.model.Part(settings.part);
  header.Sections = Narrow<std::int16_t>(std::max(0, grid.width - 1));
  if (HScroll16.value() == 1) return Command7.Press();
  header.maxpoints = Narrow<std::int16_t>(points > 0 ? std::min(points + 1, kMaxPoints) : 0);
  header.minpoints = 1;
  revolve.BuildGridFaces(grid.width, grid.rows);
}

void SpecialEffects6::Command10_Click() {
  const int points = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  HScroll37.Show(points);
  app_.TessCount = points + 1;
}

void SpecialEffects6::Command12_Click() {
  const int points = RestorePoints(app_.model, CurrentPart(app_));
  if (points == 0) return;
  app_.TessCount = points + 1;
  FollowMesh();
}

// One narrow column: the picture of the model stays in sight while the bars are moved.
LayoutItem SpecialEffects6::DeclareLayout() {
  return Column({
      Frame("Part", {BarRow(HScroll1), BarRow(HScroll2), Single(Check1)}),
      Frame("Tesselate", {Single(Picture4), Flow({&Command7, &Command5, &Check2, &Label5}),
                          Flow({&Option1, &Option2, &Option3, &Option4}), BarRow(HScroll6), BarRow(HScroll7),
                          BarRow(HScroll8)}),
      Frame("Points", {BarRow(HScroll16, {&Label16}), BarRow(HScroll37), BarRow(HScroll38),
                       Flow({&Command10, &Command11, &Command12})}),
      Frame("Sided Shape", {BarRow(HScroll3), BarRow(HScroll4), BarRow(HScroll5), Flow({&Command1})}),
      Frame("Random Mesh",
            {Row({Labelled("X dir", Text4), Labelled("Y dir", Text5)}), Labelled("# of Points", Text6),
             Row({Labelled("Rnd Seed Value", Text20), Single(Command9)}), Flow({&Command2})}),
      Frame("Profiles", {BarRow(HScroll11), BarRow(HScroll10), Flow({&Command4})}),
      GridFrame(),
  });
}

LayoutItem SpecialEffects6::GridFrame() {
  return Frame(
      "Grid",
      {Flow({&Command3, &Check3}), BarRow(HScroll13), BarRow(HScroll12), BarRow(HScroll14), BarRow(HScroll15),
       Row({Labelled("Start X", Text27), Labelled("Start Y", Text28)}),
       Frame("Y direction",
             {Labelled("Freq", Text30), BarRow(HScroll17), BarRow(HScroll18), BarRow(HScroll19)}),
       Frame("X direction",
             {Labelled("Freq", Text29), BarRow(HScroll22), BarRow(HScroll23), BarRow(HScroll24)}),
       Frame("Z Dir Additive", {BarRow(HScroll27, {&Label27}), BarRow(HScroll30, {&Label30})}),
       Frame("Y Dir Additive--General", {BarRow(HScroll32, {&Label32}), Labelled("Mult Amnt", Text37)}),
       Frame("X Dir Additive-General", {BarRow(HScroll34, {&Label34}), Labelled("Mult Amnt", Text35)})});
}

}  // namespace pelorium

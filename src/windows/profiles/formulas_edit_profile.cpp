// "Edit Profile".
#include "windows/profiles/formulas_edit_profile.h"

#include <cmath>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "profiles/gray_to_z.h"
#include "profiles/keep_finite.h"
#include "profiles/random_profile.h"
#include "windows/profiles/formulas2frm_profile_formulas.h"
#include "windows/profiles/formulas3frm_edit_profile_ranges.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/shell/raised.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr double kRandomRange = 100;  // units

using P = ProfilePointRec;

// A coordinate that has run away to infinity shows as such.
std::string CoordinateText(double value) {
  return std::isfinite(value) ? GeneralForm(value) : ShortestForm(value);
}

}  // namespace

Formulas::Formulas(App& app)
    : ToolWindow(app, "Formulas", "Edit Profile"),
      view(*this, app),
      drag_(app, Picture1, Option2, Option3,
            {[this] {
               const int profile = CurrentProfile(app_);
               return ProfileBlock{profile, profile, HScroll23.value(), HScroll24.value()};
             },
             [] { return 1; },
             [this] {
               ShowCoordinates();
               RefreshViews(app_);
             }}) {
  BindParameters();
  BindPointEdits();
  BindAxes();
  BindMirrors();
  BindFetches();
  SetLayout(DeclareLayout());
}

void Formulas::BindParameters() {
  for (ScrollBar* selector : {&HScroll25, &HScroll3}) {
    selector->onChange = [this, selector] { app_.view->form51.HScroll3.SetValue(selector->value()); };
  }
  HScroll27.onChange = [this] { ShowCoordinates(); };
  for (TextBox* box : {&Text35, &Text36, &Text37}) box->onKeyUp = [this] { StoreCoordinates(); };
}

void Formulas::Bind(PushButton& button, std::function<void()> edit) {
  button.onClick = [this, &button, edit = std::move(edit)](const Click&) {
    const int profile = CurrentProfile(app_), count = ReadModel(app_).Profile(profile).count;
    Edit(
        button, [&] { EditKeepingFinite(app_.model, edit); }, kChangeOnly);
    if (ReadModel(app_).Profile(profile).count != count) app_.view->form51.ShowProfileCount();
    ShowCoordinates();
    RefreshViews(app_);
  };
}

void Formulas::BindPointEdits() {
  ModelStore& model = app_.model;
  Bind(Command12,
       [this, &model] { MatchPoints(model, CurrentProfile(app_), HScroll13.value(), HScroll14.value()); });
  Bind(Command7, [this] { JoinEnds(); });
  Bind(Command17, [this, &model] { model.Profile(CurrentProfile(app_)).count = 0; });
  Bind(Command19, [this, &model] { ErasePoints(model, CurrentProfile(app_), Points()); });
  Bind(Command18, [this, &model] { CopyProfile(model, CurrentProfile(app_), Profiles(), Points()); });
  Bind(Command8, [this, &model] { SpaceProfiles(model, Profiles(), Points(), &P::Z, HScroll2.Number()); });
  Bind(Command16,
       [this, &model] { SetAxis(model, CurrentProfile(app_), Points(), &P::Z, HScroll28.Number()); });
  Bind(Command15, [this] { FetchGrays(); });
  Bind(method4, [this] { FetchRandom(); });
}

void Formulas::BindAxes() {
  ModelStore& model = app_.model;
  struct Swap {
    PushButton& button;
    ProfileAxis a, b;
  };
  for (const Swap& s : std::initializer_list<Swap>{
           {Command1, &P::X, &P::Y}, {Command2, &P::X, &P::Z}, {Command3, &P::Y, &P::Z}}) {
    Bind(s.button, [this, &model, s] { SwapAxes(model, CurrentProfile(app_), Points(), s.a, s.b); });
  }
  for (auto [button, axis] : {std::pair{&Command20, &P::X}, {&Command21, &P::Y}, {&Command22, &P::Z}}) {
    Bind(*button, [this, &model, axis] { InvertAxis(model, CurrentProfile(app_), Points(), axis); });
  }
  for (auto [button, axis] : {std::pair{&Command23, &P::X}, {&Command24, &P::Y}, {&Command25, &P::Z}}) {
    Bind(*button,
         [this, &model, axis] { SpaceProfiles(model, Profiles(), Points(), axis, HScroll1.Number()); });
  }
}

void Formulas::BindMirrors() {
  ModelStore& model = app_.model;
  for (auto [button, axis] : {std::pair{&Command10, &P::X}, {&Command11, &P::Z}}) {
    Bind(*button, [this, &model, axis] { MirrorProfile(model, CurrentProfile(app_), axis); });
  }
  for (auto [button, axis] : {std::pair{&Command4, &P::X}, {&Command5, &P::Z}}) {
    Bind(*button, [this, &model, axis] { MirrorProfiles(model, Profiles(), axis); });
  }
}

void Formulas::BindFetches() {
  ModelStore& model = app_.model;
  Bind(Command14, [this, &model] { GetLayer(model, Rings(), HScroll18.value(), CurrentProfile(app_)); });
  Bind(Command6,
       [this, &model] { GetLayers(model, Rings(), HScroll9.value(), HScroll10.value(), HScroll11.value()); });
  Bind(Command9, [this, &model] {
    RingGrid rings = Rings();
    rings.rowLength = rings.pointsPerRing;
    GetSides(model, rings, HScroll7.value(), HScroll8.value(), HScroll12.value());
  });
}

// Layers begin where the Part's rings do; "Pts/ layer" says how many points of a ring are taken.
RingGrid Formulas::Rings() const {
  const int part = CurrentPart(app_);
  return {part, ReadModel(app_).Part(part).Sections + 1, PointsPerLayer(app_)};
}

void Formulas::JoinEnds() {
  const int profile = CurrentProfile(app_), count = ReadModel(app_).Profile(profile).count;
  HScroll27.SetValue(0);
  MatchPoints(app_.model, profile, HScroll27.value(), count);
  HScroll27.SetValueWidening(count);
}

void Formulas::FetchRandom() {
  app_.random.SeedFromClock(app_.platform.ClockReading());
  RandomProfile(app_.model, CurrentProfile(app_), Points(), PlaneOf(subView_), Origin(app_), kRandomRange,
                app_.random);
}

void Formulas::FetchGrays() {
  const auto [panX, panY] = ViewPan(app_);
  GrayToZ(app_.model, CurrentProfile(app_), Points(),
          {app_.view->form36.Picture2.picture(), panX, panY, HScroll4.Number()});
}

void Formulas::ShowSubView() {
  for (ProfileViewOptions* options :
       {&view, &app_.profiles->formulas2frm.view, &app_.profiles->formulas3frm.view}) {
    options->Of(subView_).SetValue(true);
  }
}

void Formulas::ChooseSubView(Projection projection) {
  subView_ = projection;
  ShowSubView();
  app_.view->form51.Option1.SetValue(true);
  RefreshViews(app_);
}

void Formulas::ChooseShaded() {
  if (isShadedChosen_) return;  // the others follow this one
  const Raised choosing(isShadedChosen_);
  for (ProfileViewOptions* options :
       {&view, &app_.profiles->formulas2frm.view, &app_.profiles->formulas3frm.view}) {
    options->Option8.SetValue(true);
  }
  app_.view->form51.Command2.Press();
}

void Formulas::ViewOptionChosen() {
  if (IsProfileViewChosen(app_)) ShowSubView();
}

void Formulas::ProfileChosen() {
  HScroll25.SetValue(CurrentProfile(app_));
  HScroll3.SetValue(CurrentProfile(app_));
  ShowCoordinates();
}

void Formulas::LayerShown(int layer) {
  HScroll27.SetValueWidening(layer);
  ShowCoordinates();
}

void Formulas::LayerChosen(int layer) {
  LayerShown(layer);
  const double third =
      ThirdCoordinate(PlaneOf(subView_), ReadModel(app_).ProfilePts(layer, CurrentProfile(app_)));
  HScroll28.SetValue(HScroll28.Clamped(third));
}

void Formulas::ShowCoordinates() {
  const P& point = ReadModel(app_).ProfilePts(HScroll27.value(), CurrentProfile(app_));
  for (auto [box, axis] : {std::pair{&Text35, &P::X}, {&Text36, &P::Y}, {&Text37, &P::Z}}) {
    box->SetText(CoordinateText(point.*axis));
  }
}

void Formulas::StoreCoordinates() {
  P& point = app_.model.ProfilePts(HScroll27.value(), CurrentProfile(app_));
  point.X = Text35.Number();
  point.Y = Text36.Number();
  point.Z = Text37.Number();
  RefreshViews(app_);
}

// One narrow column: the picture stays in sight while profiles are edited.
LayoutItem Formulas::DeclareLayout() {
  return Column({
      Frame("View", {Flow(view.All())}),
      Frame("Single Profile", {BarRow(HScroll25)}),
      Frame("Point",
            {BarRow(HScroll27), Row({Labelled("X", Text35), Labelled("Y", Text36), Labelled("Z", Text37)}),
             BarRow(HScroll13), BarRow(HScroll14), Flow({&Command12})},
            "change a slected point to a XYZ location "),
      Frame("Pts Min/ Max", {BarRow(HScroll23), BarRow(HScroll24)}),
      Frame("Profiles  Min/ Max", {BarRow(HScroll22), BarRow(HScroll29)}),
      Frame("Profile", {Flow({&Command17, &Command19, &Command7, &Command18, &method4}),
                        Flow({&Command1, &Command2, &Command3, &Command20, &Command21, &Command22}),
                        Flow({&Command10, &Command11, &Command4, &Command5})}),
      Frame("Drag", {Flow({&Option1, &Option2, &Option3}), Single(Picture1)}),
      Frame("Regular spacing (range)", {BarRow(HScroll1), Flow({&Command23, &Command24, &Command25})}),
      Frame("Set elev (Progressive Range)", {BarRow(HScroll2), Flow({&Command8})}),
      Frame("Set Elev", {BarRow(HScroll28), Flow({&Command16})}),
      Frame("Grey Levels For Z   (Current Profile)", {BarRow(HScroll4), Flow({&Command15})},
            "Gray levels applied to Z (creates terrain modeling effec"),
      Frame("Layers of the Part", {BarRow(HScroll18), Flow({&Command14}), BarRow(HScroll9), BarRow(HScroll10),
                                   BarRow(HScroll11), Flow({&Command6})}),
      Frame("Sides of the Part", {BarRow(HScroll7), BarRow(HScroll8), BarRow(HScroll12), Flow({&Command9})}),
      Frame("Global Settings", {BarRow(HScroll3)}),
  });
}

}  // namespace pelorium

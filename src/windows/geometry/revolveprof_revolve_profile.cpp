// "Revolve Profile".
#include "windows/geometry/revolveprof_revolve_profile.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "geometry/grid.h"
#include "geometry/join_ends.h"
#include "geometry/sections_to_profiles.h"
#include "windows/geometry/form55_extrude_profile.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/weld_seam.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr int kMostSections = 61;
constexpr double kHundredths = 100;

// A typed end of a range, held in that of its bar: a loop over it ends.
int HeldIn(const ScrollBar& bar, const TextBox& box) { return bar.Clamped(box.Number()); }

}  // namespace

RevolveProf::RevolveProf(App& app) : ToolWindow(app, "revolveprof", "Revolve Profile") {
  BindParameters();
  BindGeneralFields();
  HScroll10.onChange = [this] { HScroll10_Change(); };
  for (ScrollBar* bar : {&HScroll10, &HScroll22}) {
    bar->onMovedByPerson = [this] { app_.model.Part(CurrentPart(app_)).grid.reset(); };
  }
  OnEdit(Command15, [this] { Command15_Click(); }, {.syncs = false, .holds = true});
  OnEdit(Command18, [this] { JoinRingEnds(app_.model, CurrentPart(app_), PointsPerLayer(app_)); });
  SetLayout(DeclareLayout());
}

// Boxes that are parameters themselves only mirror their bar; typing into the others moves the bar.
void RevolveProf::BindParameters() {
  struct Parameter {
    ScrollBar& bar;
    TextBox& box;
    double divisor = 1;
  };
  for (const Parameter& p : std::initializer_list<Parameter>{{HScroll9, Text7},
                                                             {HScroll11, Text6},
                                                             {HScroll3, Text33},
                                                             {HScroll6, Text34},
                                                             {HScroll46, Text43},
                                                             {HScroll1, Text1},
                                                             {HScroll5, Text3},
                                                             {HScroll8, Text5},
                                                             {HScroll4, Text9, kHundredths},
                                                             {HScroll2, Text45, kHundredths},
                                                             {HScroll16, Text12, kHundredths},
                                                             {HScroll17, Text13, kHundredths}}) {
    Mirror(p.bar, p.box, p.divisor);
    p.bar.onChange = [this] { AutoRevolve(); };
  }
  for (const Parameter& p : std::initializer_list<Parameter>{{HScroll48, Text40},
                                                             {HScroll47, Text41},
                                                             {HScroll49, Text44},
                                                             {HScroll50, Text47},
                                                             {HScroll15, Text46},
                                                             {HScroll13, Text11},
                                                             {HScroll42, Text39}}) {
    Pair(p.bar, p.box, p.divisor);
    p.bar.onChange = [this] { AutoRevolve(); };
  }
  Pair(HScroll10, Text8);
  HScroll22.onChange = [this] { AutoRevolve(); };
  for (CheckBox* tick :
       {&Check14, &Check4, &Check2, &Check1, &Check8, &Check6, &Check7, &Check9, &Check10, &Check5}) {
    tick->onClick = [this](const Click&) { AutoRevolve(); };
  }
}

void RevolveProf::BindGeneralFields() {
  using P = ProfileHeader;
  generalFields_ = {
      {&HScroll31, &Text21, &P::genMoveX, 1},           {&HScroll32, &Text22, &P::genMoveY, 1},
      {&HScroll33, &Text23, &P::genMoveZ, 1},           {&HScroll34, &Text24, &P::genRotateX, 1},
      {&HScroll35, &Text25, &P::genTurnY, 1},           {&HScroll36, &Text26, &P::genSpinZ, 1},
      {&HScroll37, &Text27, &P::genMultX, kHundredths}, {&HScroll38, &Text28, &P::genMultY, kHundredths},
      {&HScroll39, &Text29, &P::genMultZ, kHundredths},
  };
  for (const GeneralField& f : generalFields_) {
    Pair(*f.bar, *f.box, f.divisor);
    f.bar->onChange = [this, f] {
      app_.model.Profile(CurrentProfile(app_)).*f.field = f.bar->Shown();
      app_.geometry->form55.ShowGeneralFields();
      AutoRevolve();
    };
  }
}

void RevolveProf::ProfileChosen() {
  ShowGeneralFields();
  HScroll22.movedByPerson = false;
}

void RevolveProf::ShowGeneralFields() {
  const ProfileHeader& profile = app_.model.Profile(CurrentProfile(app_));
  for (const GeneralField& f : generalFields_) f.bar->Show(profile.*f.field);
}

void RevolveProf::ResetEffects() {
  const HoldAutomaticActions hold(app_);
  for (auto [bar, box] : {std::pair{&HScroll8, &Text5}, {&HScroll5, &Text3}, {&HScroll1, &Text1}}) {
    bar->SetValue(0);
    box->SetText("0");  // a typed amount may differ from its bar
  }
}

void RevolveProf::AutoRevolve() {
  if (Option2.value() && app_.automaticActionsHeld == 0) Command15.Press();
}

void RevolveProf::HScroll10_Change() {
  {
    const HoldAutomaticActions hold(app_);
    const auto sections = Narrow<std::int16_t>(HScroll10.value());
    Text9.SetText(GeneralForm(360.0 / sections));
    app_.model.Profile(CurrentProfile(app_)).sectionCount = sections;
    app_.model.Part(CurrentPart(app_)).Sections = sections;
    app_.links.freeFaceRange(sections - 1, sections + 1);
    HScroll11.SetMax(std::max(HScroll11.max(), kMostSections));
    HScroll11.SetValue(sections);
    FollowSectionsWidely(app_);
  }
  AutoRevolve();
}

int RevolveProf::FirstSection() const { return HeldIn(HScroll9, Text7); }

RevolveSettings RevolveProf::ReadSettings() const {
  RevolveSettings s;
  s.profile = CurrentProfile(app_);
  s.part = CurrentPart(app_);
  s.firstLayer = HeldIn(HScroll3, Text33);
  s.lastLayer = HeldIn(HScroll6, Text34);
  s.firstSection = FirstSection();
  s.lastSection = HeldIn(HScroll11, Text6);
  s.firstPlaced = HScroll48.value();
  s.lastPlaced = HScroll47.value();
  s.layersLimit = HScroll22.value();
  s.degreesPerSection = Text9.Number();
  s.increment = Text43.Number();
  s.corkscrew = Text1.Number();
  s.spiral = Text3.Number();
  s.petalsX = HScroll15.value();
  s.petalsY = HScroll13.value();
  s.petalAmp = Text5.Number();
  s.multiplyX = Text45.Number();
  s.multiplyY = Text12.Number();
  s.regularSpacing = Check14.value();
  s.spacing = HScroll42.Shown();
  s.origin = Origin(app_);
  return s;
}

// The limits follow the profile's count, and all its layers are meshed unless a person set a limit for this
// profile.
void RevolveProf::PrepareHeaders(int profile, int part) {
  ProfileHeader& header = app_.model.Profile(profile);
  const int count = header.count;
  HScroll22.SetMax(count);
  if (!HScroll22.movedByPerson) HScroll22.SetValue(count);
  HScroll27.SetMax(count);
  HScroll7.SetValueWidening(header.sectionCount);
  const auto sections = Narrow<std::int16_t>(HScroll10.value());
  PartHeader& target = app_.model.Part(part);
  target.Sections = header.sectionCount = sections;
  target.count = header.count;
  app_.model.PointMark(part, 0) = 1;
}

void RevolveProf::Command15_Click() {
  PrepareHeaders(CurrentProfile(app_), CurrentPart(app_));
  const RevolveSettings settings = ReadSettings();
  LayRevolvedPoints(app_.model, settings);
  // A range cut by hand makes shorter rings than the sections say.
  app_.model.Part(settings.part).Sections = Narrow<std::int16_t>(std::max(0, RingWidth(settings) - 1));
  LeaveProfileView(app_);
  BuildGridFaces(RingWidth(settings), MeshedRows(settings));
  FinishEnds(settings);
}

void RevolveProf::BuildGridFaces(int width, int rows) {
  const int part = CurrentPart(app_);
  pelorium::BuildGridFaces(app_.model, part, width, rows, Check4.value() ? Seam::Wrapped : Seam::Open);
  app_.model.Part(part).grid = {width, rows};
  FollowGenerated(app_);
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void RevolveProf::PressCaps(const LaidGrid& body) {
  for (auto [tick, cap] :
       {std::pair{&Check6, Cap::Bottom}, {&Check7, Cap::Top}, {&Check9, Cap::End}, {&Check10, Cap::Start}}) {
    if (tick->value()) app_.links.pressCap(cap, body);
  }
}

void RevolveProf::FinishEnds(const RevolveSettings& settings) {
  PressCaps({RingWidth(settings), MeshedRows(settings)});
  for (const CheckBox* tick : {&Check8, &Check1}) {
    if (tick->value()) Command18.Press();
  }
  if (Check2.value()) {
    WeldSeam(app_);
    FollowSectionsWidely(app_);
  }
  if (Check5.value()) {
    ProfilesFromSections(app_.model, settings.part, RingWidth(settings), MeshedRows(settings),
                         settings.profile);
  }
}

// One narrow column: the picture stays in sight while the bars are moved.
LayoutItem RevolveProf::DeclareLayout() {
  std::vector<LayoutItem> general;
  for (const GeneralField& f : generalFields_) general.push_back(BarRow(*f.bar, {f.box}));
  return Column({
      Flow({&Command15, &Command18}),
      Flow({&Option4, &Option2}),
      Frame("Sections and layers",
            {BarRow(HScroll10, {&Text8}), BarRow(HScroll4, {&Text9}), BarRow(HScroll9, {&Text7}),
             BarRow(HScroll11, {&Text6}), BarRow(HScroll3, {&Text33}), BarRow(HScroll6, {&Text34}),
             BarRow(HScroll22, {}), BarRow(HScroll7, {}), BarRow(HScroll27, {})}),
      Frame("Petals, spiral, corkscrew",
            {BarRow(HScroll15, {&Text46}), BarRow(HScroll13, {&Text11}), BarRow(HScroll8, {&Text5}),
             BarRow(HScroll2, {&Text45}), BarRow(HScroll16, {&Text12}), BarRow(HScroll17, {&Text13}),
             BarRow(HScroll5, {&Text3}), BarRow(HScroll1, {&Text1}), Single(Check14),
             BarRow(HScroll42, {&Text39})}),
      Frame("Ends",
            {Flow({&Check4, &Check2, &Check1, &Check8, &Check6, &Check7, &Check9, &Check10, &Check5})}),
      Frame("General Positioning", std::move(general)),
      Frame("Simple Revolve Settings",
            {BarRow(HScroll48, {&Text40}), BarRow(HScroll47, {&Text41}), BarRow(HScroll49, {&Text44}),
             BarRow(HScroll50, {&Text47, &closing}), BarRow(HScroll46, {&Text43})}),
  });
}

}  // namespace pelorium

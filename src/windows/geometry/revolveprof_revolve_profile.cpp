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
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr int kMostSections = 61;

// A typed end of a range, held in that of its bar: a loop over it ends.
int HeldIn(const BoxedBar& bar) { return bar.Clamped(bar.Number()); }

}  // namespace

RevolveProf::RevolveProf(App& app) : ToolWindow(app, "revolveprof", "Revolve Profile") {
  BindParameters();
  BindGeneralFields();
  HScroll10.onChange = [this] { HScroll10_Change(); };
  HScroll10.onMovedByPerson =
      HScroll22.onMovedByPerson = [this] { app_.model.Part(CurrentPart(app_)).grid.reset(); };
  app_.history->held.Carry(HScroll10);
  app_.history->held.Carry(HScroll22, HeldState::CarriedLimit::IsCarried);
  OnEdit(Command15, [this] { Command15_Click(); }, {.syncs = false, .holds = true});
  OnEdit(Command18, [this] { JoinRingEnds(app_.model, CurrentPart(app_), PointsPerLayer(app_)); });
  SetLayout(DeclareLayout());
}

void RevolveProf::BindParameters() {
  for (ScrollBar* bar : std::initializer_list<ScrollBar*>{
           &HScroll9,  &HScroll11, &HScroll3,  &HScroll6,  &HScroll46, &HScroll1,  &HScroll5,
           &HScroll8,  &HScroll4,  &HScroll2,  &HScroll16, &HScroll17, &HScroll48, &HScroll47,
           &HScroll49, &HScroll50, &HScroll15, &HScroll13, &HScroll42, &HScroll22}) {
    bar->onChange = [this] { AutoRevolve(); };
  }
  for (CheckBox* tick :
       {&Check14, &Check4, &Check2, &Check1, &Check8, &Check6, &Check7, &Check9, &Check10, &Check5}) {
    tick->onClick = [this](const Click&) { AutoRevolve(); };
  }
}

void RevolveProf::BindGeneralFields() {
  using P = ProfileHeader;
  generalFields_ = {
      {&HScroll31, &P::genMoveX},   {&HScroll32, &P::genMoveY}, {&HScroll33, &P::genMoveZ},
      {&HScroll34, &P::genRotateX}, {&HScroll35, &P::genTurnY}, {&HScroll36, &P::genSpinZ},
      {&HScroll37, &P::genMultX},   {&HScroll38, &P::genMultY}, {&HScroll39, &P::genMultZ},
  };
  for (const GeneralField& f : generalFields_) {
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
  const ProfileHeader& profile = ReadModel(app_).Profile(CurrentProfile(app_));
  for (const GeneralField& f : generalFields_) f.bar->Show(profile.*f.field);
}

void RevolveProf::ResetEffects() {
  const HoldAutomaticActions hold(app_);
  for (BoxedBar* amount : {&HScroll8, &HScroll5, &HScroll1}) amount->Reset();
}

void RevolveProf::AutoRevolve() {
  if (Option2.value() && app_.automaticActionsHeld == 0) Command15.Press();
}

void RevolveProf::HScroll10_Change() {
  {
    const HoldAutomaticActions hold(app_);
    const auto sections = Narrow<std::int16_t>(HScroll10.value());
    HScroll4.box.SetText(GeneralForm(360.0 / sections));
    app_.model.Profile(CurrentProfile(app_)).sectionCount = sections;
    app_.model.Part(CurrentPart(app_)).Sections = sections;
    app_.links.freeFaceRange(sections - 1, sections + 1);
    HScroll11.SetMax(std::max(HScroll11.max(), kMostSections));
    HScroll11.SetValue(sections);
    FollowSectionsWidely(app_);
  }
  AutoRevolve();
}

int RevolveProf::FirstSection() const { return HeldIn(HScroll9); }

RevolveSettings RevolveProf::ReadSettings() const {
  RevolveSettings s;
  s.profile = CurrentProfile(app_);
  s.part = CurrentPart(app_);
  s.firstLayer = HeldIn(HScroll3);
  s.lastLayer = HeldIn(HScroll6);
  s.firstSection = FirstSection();
  s.lastSection = HeldIn(HScroll11);
  s.firstPlaced = HScroll48.value();
  s.lastPlaced = HScroll47.value();
  s.layersLimit = HScroll22.value();
  s.degreesPerSection = HScroll4.Number();
  s.increment = HScroll46.Number();
  s.corkscrew = HScroll1.Number();
  s.spiral = HScroll5.Number();
  s.petalsX = HScroll15.value();
  s.petalsY = HScroll13.value();
  s.petalAmp = HScroll8.Number();
  s.multiplyX = HScroll2.Number();
  s.multiplyY = HScroll16.Number();
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
  for (const GeneralField& f : generalFields_) general.push_back(BarRow(*f.bar));
  return Column({
      Flow({&Command15, &Command18}),
      Flow({&Option4, &Option2}),
      Frame("Sections and layers",
            {BarRow(HScroll10), BarRow(HScroll4), BarRow(HScroll9), BarRow(HScroll11), BarRow(HScroll3),
             BarRow(HScroll6), BarRow(HScroll22), BarRow(HScroll7), BarRow(HScroll27)}),
      Frame("Petals, spiral, corkscrew",
            {BarRow(HScroll15), BarRow(HScroll13), BarRow(HScroll8), BarRow(HScroll2), BarRow(HScroll16),
             BarRow(HScroll17), BarRow(HScroll5), BarRow(HScroll1), Single(Check14), BarRow(HScroll42)}),
      Frame("Ends",
            {Flow({&Check4, &Check2, &Check1, &Check8, &Check6, &Check7, &Check9, &Check10, &Check5})}),
      Frame("General Positioning", std::move(general)),
      Frame("Simple Revolve Settings", {BarRow(HScroll48), BarRow(HScroll47), BarRow(HScroll49),
                                        BarRow(HScroll50, {&closing}), BarRow(HScroll46)}),
  });
}

}  // namespace pelorium

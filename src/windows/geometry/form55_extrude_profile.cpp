// "Extrude Profile".
#include "windows/geometry/form55_extrude_profile.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "windows/geometry/extrude_fields.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/weld_seam.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kMostLayers = 62;
constexpr int kMostWeldedPoints = 36;
constexpr int kUnscaled = 100;  // of a bar that counts hundredths

}  // namespace

Form55::Form55(App& app)
    : ToolWindow(app, "Form55", "Extrude Profile"),
      fields_(MakeBars(*this, ExtrudeFields(), Typing::MovesBar)) {
  BindFields();
  BindPickers();
  OnEdit(
      HScroll24, [this] { HScroll24_Change(); }, kChangeOnly);
  for (CheckBox* cap : {&Check2, &Check3}) cap->onClick = [this](const Click&) { Cap_Click(); };
  Command33.onClick = [this](const Click&) { Command33_Click(); };
  OnEdit(Command30, [this] { Command30_Click(); }, {.syncs = false, .holds = true});
  SetLayout(DeclareLayout());
}

void Form55::BindFields() {
  for (std::size_t row = 0; row < fields_.size(); ++row) {
    fields_[row]->onChange = [this, row] {
      WriteField(row);
      ShowFieldsLike(row);
      AutoExtrude();
    };
  }
  struct Leader {
    ScrollBar& bar;
    std::vector<std::string_view> followers;
  };
  for (const Leader& leader :
       std::initializer_list<Leader>{{HScroll34, {"HScroll29", "HScroll30"}},
                                     {HScroll12, {"HScroll10", "HScroll11"}},
                                     {HScroll43, {"HScroll40", "HScroll41", "HScroll42"}}}) {
    leader.bar.onChange = [this, leader] {
      for (std::string_view name : leader.followers) FieldBar(name).SetValue(leader.bar.value());
    };
  }
}

void Form55::BindPickers() {
  HScroll16.onChange = [this] {
    HScroll4.SetValue(HScroll16.value());
    ShowFields();
  };
  HScroll6.onChange = [this] { ShowFields(); };
  HScroll4.onChange = [this] { HScroll16.SetValue(HScroll4.value()); };
  HScroll36.onChange = [this] { HScroll35.SetValue(HScroll36.value()); };
  for (ScrollBar* hidden : {&HScroll36, &HScroll4}) hidden->SetVisible(false);
  HScroll35.onChange = [this] { app_.view->form51.HScroll3.SetValue(HScroll35.value()); };
  HScroll2.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll2.value()); };
}

ScrollBar& Form55::FieldBar(std::string_view name) { return *dynamic_cast<ScrollBar*>(Find(name)); }

void Form55::WriteField(std::size_t row) {
  const ExtrudeField& field = ExtrudeFields()[row];
  const ScrollBar& bar = *fields_[row];
  const int profile = CurrentProfile(app_);
  if (const auto* whole = std::get_if<std::int16_t ProfileHeader::*>(&field.field)) {
    app_.model.Profile(profile).** whole = Narrow<std::int16_t>(bar.value());
  } else if (const auto* general = std::get_if<double ProfileHeader::*>(&field.field)) {
    app_.model.Profile(profile).** general = bar.Shown();
    app_.geometry->revolveprof.ShowGeneralFields();
  } else {
    const bool isLayer = field.of == FieldOf::Layer;
    const int first = isLayer ? HScroll16.value() : HScroll6.value();
    const int last = isLayer && Check4.value() ? std::max(first, HScroll24.value()) : first;
    for (int i = first; i <= last; ++i) {
      app_.model.ProfilePts(i, profile).*std::get<double ProfilePointRec::*>(field.field) = bar.Shown();
    }
  }
}

double Form55::ReadField(std::size_t row) const {
  const ExtrudeField& field = ExtrudeFields()[row];
  const int profile = CurrentProfile(app_);
  if (const auto* whole = std::get_if<std::int16_t ProfileHeader::*>(&field.field)) {
    return ReadModel(app_).Profile(profile).**whole;
  }
  if (const auto* general = std::get_if<double ProfileHeader::*>(&field.field)) {
    return ReadModel(app_).Profile(profile).**general;
  }
  const int point = field.of == FieldOf::Layer ? HScroll16.value() : HScroll6.value();
  return ReadModel(app_).ProfilePts(point, profile).*std::get<double ProfilePointRec::*>(field.field);
}

void Form55::ProfileChosen() {
  HScroll35.SetValue(CurrentProfile(app_));
  HScroll36.SetValue(CurrentProfile(app_));
  RecordsRestored();
}

void Form55::RecordsRestored() {
  const ProfileHeader& header = ReadModel(app_).Profile(CurrentProfile(app_));
  HScroll24.Show(header.layerCount);
  ShowFields();
  showing_ = true;
  Check2.SetValue(header.bottomCap == 1);
  Check3.SetValue(header.topCap == 1);
  showing_ = false;
}

void Form55::ShowFields() {
  for (std::size_t row = 0; row < fields_.size(); ++row) fields_[row]->Show(ReadField(row));
}

void Form55::ShowGeneralFields() {
  for (std::size_t row = 0; row < fields_.size(); ++row) {
    if (ExtrudeFields()[row].frame == kPositionFrame) fields_[row]->Show(ReadField(row));
  }
}

// Two bars may stand for one setting.
void Form55::ShowFieldsLike(std::size_t row) {
  for (std::size_t other = 0; other < fields_.size(); ++other) {
    const bool isLike = other != row && ExtrudeFields()[other].field == ExtrudeFields()[row].field;
    if (isLike) fields_[other]->Show(ReadField(other));
  }
}

void Form55::PartChosen() { HScroll2.SetValue(CurrentPart(app_)); }

void Form55::AutoExtrude() {
  if (Check1.value() && app_.automaticActionsHeld == 0) Command30.Press();
}

// One layer fewer than the bar says until the next extrude, which then writes the bar's own value.
void Form55::HScroll24_Change() {
  const int sections = HScroll24.value(), profile = CurrentProfile(app_);
  app_.model.Profile(profile).layerCount = Narrow<std::int16_t>(sections - 1);
  if (Check6.value()) {
    SpinLayersEvenly(app_.model, profile, sections);
    ShowFields();
  }
  AutoExtrude();
}

void Form55::Cap_Click() {
  if (showing_) return;
  ProfileHeader& header = app_.model.Profile(CurrentProfile(app_));
  header.bottomCap = Check2.value() ? 1 : 0;
  header.topCap = Check3.value() ? 1 : 0;
  AutoExtrude();
}

void Form55::Command33_Click() {
  ClearExtrudeSettings(app_.model, CurrentProfile(app_));
  app_.view->form51.ShowProfile();
  for (ScrollBar* leader : {&HScroll34, &HScroll12, &HScroll43}) leader->Show(kUnscaled);
  AutoExtrude();
}

// The rings are those of the profile as it stands: the sections follow its count.
ExtrudeSettings Form55::PrepareHeaders() {
  ExtrudeSettings settings;
  settings.profile = CurrentProfile(app_);
  settings.part = CurrentPart(app_);
  if (RaiseCountForExtrude(app_.model, settings.profile)) app_.view->form51.ShowProfileCount();
  ProfileHeader& profile = app_.model.Profile(settings.profile);

  RevolveProf& grid = app_.geometry->revolveprof;
  grid.HScroll22.SetMax(std::max(grid.HScroll22.max(), kMostLayers));
  grid.HScroll22.SetValue(HScroll24.value());
  grid.HScroll22.movedByPerson = false;
  grid.HScroll10.SetValue(profile.count - 1);
  profile.sectionCount = Narrow<std::int16_t>(grid.HScroll10.value());

  settings.firstSection = grid.FirstSection();
  settings.lastSection = profile.sectionCount;
  settings.additive = Check5.value();
  settings.origin = Origin(app_);
  PartHeader& part = app_.model.Part(settings.part);
  part.Sections = Narrow<std::int16_t>(std::max(0, RingWidth(settings) - 1));
  part.count = Narrow<std::int16_t>(HScroll24.value());
  return settings;
}

void Form55::Command30_Click() {
  const ExtrudeSettings settings = PrepareHeaders();
  const int next = LayExtrudedPoints(app_.model, settings);
  app_.model.PointMark(settings.part, 0) = 1;
  if (!settings.additive) FinishMesh(settings, next);
  SyncFaceCorners(app_);
  RefreshViews(app_);
  PressCaps(settings);
  FinishRing(settings);
}

int Form55::MeshedRows(const ExtrudeSettings& settings) const {
  return std::min(HScroll24.value(), RingsOf(app_.model, settings));
}

void Form55::FinishMesh(const ExtrudeSettings& settings, int next) {
  const int rows = MeshedRows(settings);
  CountExtrudedPoints(app_.model, settings, next, rows);
  app_.geometry->revolveprof.BuildGridFaces(RingWidth(settings), rows);
  app_.view->form5.HScroll20.SetMax(std::max(1, next - 1));
  LeaveProfileView(app_);
}

// Each tick presses the end cap of the other name: layer 0 is the top of a body that stands on its last
// layer.
void Form55::PressCaps(const ExtrudeSettings& settings) {
  const ProfileHeader& header = ReadModel(app_).Profile(settings.profile);
  const LaidGrid body{RingWidth(settings), MeshedRows(settings)};
  if (header.topCap == 1) app_.links.pressCap(Cap::Bottom, body);
  if (header.bottomCap == 1) app_.links.pressCap(Cap::Top, body);
}

void Form55::FinishRing(const ExtrudeSettings& settings) {
  app_.model.Profile(settings.profile).layerCount = Narrow<std::int16_t>(HScroll24.value());
  ScrollBar& pointsPerLayer = app_.view->form5.HScroll5;
  pointsPerLayer.SetMax(kMostPointsPerLayer);
  FollowSections(app_);
  if (!Check8.value()) return;
  WeldSeam(app_);
  pointsPerLayer.SetMax(kMostWeldedPoints);
  FollowSections(app_);
}

LayoutItem Form55::FieldFrame(std::string_view title) {
  std::vector<LayoutItem> rows;
  for (std::size_t row = 0; row < fields_.size(); ++row) {
    if (ExtrudeFields()[row].frame == title) rows.push_back(BarRow(*fields_[row]));
  }
  return Frame(std::string(title), std::move(rows));
}

// One narrow column: the picture stays in sight while the bars are moved.
LayoutItem Form55::DeclareLayout() {
  LayoutItem extrude = FieldFrame(kExtrudeFrame);
  extrude.toolTip = "Extrude profile settings based on profiles XZ locations";
  extrude.items.insert(extrude.items.begin(), {BarRow(HScroll35), BarRow(HScroll2), BarRow(HScroll24)});
  extrude.items.push_back(Flow({&Check2, &Check3, &Check5, &Check8, &Check6}));

  LayoutItem layer = FieldFrame(kLayerFrame);
  layer.items.insert(layer.items.begin(), {BarRow(HScroll16), Single(Check4)});
  layer.items.push_back(BarRow(HScroll34));
  LayoutItem section = FieldFrame(kSectionFrame);
  section.items.insert(section.items.begin(), BarRow(HScroll6));
  section.items.push_back(BarRow(HScroll12));

  LayoutItem paths = FieldFrame(kPathFrame);
  paths.toolTip = "Chosen profiles for effects in XYZ dir --generally";
  LayoutItem position = FieldFrame(kPositionFrame);
  position.toolTip = "Settings for final location of extruded obj ";
  position.items.push_back(BarRow(HScroll43));
  return Column({
      Flow({&Command30, &Check1, &Command33}),
      std::move(extrude),
      Frame("Bending Per Section/Layer", {std::move(layer), std::move(section)}),
      Frame(" Additive Prof# ", {FieldFrame(kEffector1Frame), FieldFrame(kEffector2Frame)}),
      Frame("Additve Mult   ", {FieldFrame(kAmount1Frame), FieldFrame(kAmount2Frame)}),
      std::move(paths),
      std::move(position),
  });
}

}  // namespace pelorium

// "View Options".
#include "windows/form51_view_options.h"

#include <string>

#include "base/numbers.h"
#include "core/part_operations.h"
#include "windows/app.h"
#include "windows/follow_counts.h"
#include "windows/form36_view.h"
#include "windows/form55_extrude_profile.h"
#include "windows/form5_precise_edit.h"
#include "windows/formulas2frm_profile_formulas.h"
#include "windows/formulas3frm_edit_profile_ranges.h"
#include "windows/formulas_edit_profile.h"
#include "windows/refresh_views.h"
#include "windows/revolveprof_revolve_profile.h"
#include "windows/shaded_view.h"
#include "windows/shared_parameters.h"
#include "windows/specialeffects5_edit_geometry.h"

namespace pelorium {

namespace {

// a * b / c in general form; a divisor of 0 is a fault, which leaves the label as it is.
std::string Calculated(const TextBox& a, const TextBox& b, const TextBox& c) {
  if (c.Number() == 0) throw Fault(FaultKind::DivisionByZero, c.FullName());
  return GeneralForm(a.Number() * b.Number() / c.Number());
}

}  // namespace

Form51::Form51(App& app) : Window(app.host, "Form51", "View Options"), app_(app) {
  Pair(HScroll4, Text3);
  Pair(HScroll3, Text2);
  Pair(HScroll8, Text6);
  Pair(HScroll2, Text1);
  HScroll4.onChange = [this] { HScroll4_Change(); };
  HScroll3.onChange = [this] { HScroll3_Change(); };
  HScroll6.onChange = [this] { HScroll6_Change(); };
  HScroll1.onChange = HScroll13.onChange = [this] { Zoom_Change(); };
  for (auto [bar, label] : {std::pair{&HScroll7, &Label12}, {&HScroll5, &Label10}}) {
    bar->onChange = [this, bar, label] {
      label->SetCaption(std::to_string(bar->value()));
      app_.specialeffects5.FollowFaceRange();
      RefreshViews(app_);
    };
  }
  Command17.onClick = [this](const Click&) { HScroll6.SetValue(0); };
  Command26.onClick = [this](const Click& click) { app_.form36.ZoomByButton(click); };
  Command1.onClick = [this](const Click&) { RefreshViews(app_); };
  Command2.onClick = [this](const Click&) { Command2_Click(); };
  Option7.onClick = [this](const Click&) { Option7_Click(); };
  Command5.onClick = [this](const Click&) { Command5_Click(); };
  Command3.onClick = [this](const Click&) { Command3_Click(); };
  BindViews();
  BindPreview();
  SetLayout(DeclareLayout());
}

// Everything that only changes what the picture shows.
void Form51::BindViews() {
  for (ScrollBar* bar : {&HScroll8, &HScroll9}) bar->onChange = [this] { RefreshViews(app_); };
  for (Control* control : std::initializer_list<Control*>{
           &Option2, &Option3, &Option4, &Option5, &Option6, &Option16, &Option11, &Check1, &Check3, &Check9,
           &Check10, &Check12, &Check13, &Check14, &Check15, &Check16, &Check17, &Check21, &Check30}) {
    control->onClick = [this](const Click&) { RefreshViews(app_); };
  }
  Option1.onClick = [this](const Click&) {
    app_.formulas.ShowSubView();
    RefreshViews(app_);
  };
  Check7.onClick = [this](const Click&) {
    app_.specialeffects5.Check1.SetValue(Check7.value());
    RefreshViews(app_);
  };
}

// The preview shows Y upward, as the view does.
void Form51::BindPreview() {
  Picture3.picture.SetScale(kPreviewSide, -kPreviewSide);
  Picture3.onMouseDown = [this](const MouseEvent& event) { Picture3_MouseDown(event); };
  Picture3.onMouseMove = [this](const MouseEvent& event) { Picture3_MouseMove(event); };
  Picture3.onMouseUp = [this](const MouseEvent&) { isPreviewDragged_ = false; };
}

LayoutItem Form51::DeclareLayout() {
  return Column({
      Frame("Part and profile",
            {BarRow(HScroll4, {&Text3}), BarRow(HScroll3, {&Text2}), BarRow(HScroll6, {&Label17}),
             BarRow(HScroll2, {&Text1}), Flow({&Command17})}),
      Frame("View", {Flow({&Option1, &Option4, &Option2, &Option5, &Option6, &Option16, &Option3, &Option11,
                           &Option7, &Command2})}),
      Frame("Shaded", {Row({Single(Picture3),
                            Column({Single(LeftDragHint), Single(RightDragHint), Single(ShiftDragHint)})})}),
      Frame("Show", {Flow({&Check1, &Check30, &Check7, &Check10, &Check9, &Check3, &Check14, &Check16,
                           &Check12, &Check15, &Check17, &Check13, &Check21})}),
      Frame("Faces",
            {BarRow(HScroll7, {&Label12}), BarRow(HScroll5, {&Label10}), Single(Label3), Single(Label19)}),
      Frame("Zoom and grid", {Flow({&Command26, &Command1}), BarRow(HScroll8, {&Text6}), BarRow(HScroll9, {}),
                              BarRow(HScroll13, {&Label33}), BarRow(HScroll1, {})}),
      Frame("Mouse", {Flow({&Check8, &Check4, &Check5, &Check2, &Check6})}),
      Frame("Calc", {Row({Labelled("", Text10), Labelled("*", Text8), Labelled("/", Text9), Single(Command5),
                          Single(Label24)}),
                     Row({Labelled("", Text7), Labelled("*", Text5), Labelled("/", Text4), Single(Command3),
                          Single(Label21)})}),
  });
}

void Form51::Load() {
  for (ScrollBar* selector : {&HScroll3, &HScroll6}) selector->SetMax(kMaxLayer);
  for (ScrollBar* faces : {&HScroll5, &HScroll7}) faces->SetMax(kMaxFaces);
  HScroll4.SetMax(kUserParts - 1);
}

void Form51::ShowCount() {
  const int count = app_.model.Profile(CurrentProfile(app_)).count;
  Label17.SetCaption(std::to_string(count));
  HScroll6.SetValueWidening(count);
}

void Form51::ShowProfileCount() {
  ShowCount();
  app_.formulas.ShowPoint(app_.model.Profile(CurrentProfile(app_)).count);
}

void Form51::ShowProfile() {
  ShowProfileCount();
  ShowProfileSettings();
}

void Form51::ShowProfileSettings() {
  app_.formulas.ShowProfile();
  app_.formulas2frm.ShowProfile();
  app_.formulas3frm.ShowProfile();
  app_.form55.ShowProfile();
  app_.revolveprof.ShowProfile();
}

void Form51::HScroll4_Change() {
  Trapped(app_.faults, "Form51.HScroll4", [this] {
    const HoldAutomaticActions hold(app_);
    FollowCounts(app_);
    FollowSections(app_);
    app_.form5.HScroll11.SetValue(HScroll4.value());
    app_.specialeffects5.ShowPart(HScroll4.value());
    app_.form55.ShowPart();
    app_.formulas3frm.ShowPart();
  });
  RefreshViews(app_);
}

// The point that Edit Profile has chosen stays: it shows where that point is in the profile.
void Form51::HScroll3_Change() {
  ShowCount();
  ShowProfileSettings();
  RefreshViews(app_);
}

void Form51::HScroll6_Change() {
  app_.model.Profile(CurrentProfile(app_)).count = Narrow<std::int16_t>(HScroll6.value());
  Text1.SetText(std::to_string(HScroll6.value()));
  Label17.SetCaption(std::to_string(HScroll6.value()));
  RefreshViews(app_);
}

void Form51::Zoom_Change() {
  constexpr double kZoomUnits = 10000;
  Label33.SetCaption(GeneralForm(HScroll13.value() / kZoomUnits));
  RefreshViews(app_);
}

void Form51::Command2_Click() {
  Option11.SetValue(true);
  app_.shadedView->InitShadedContext();
  RefreshViews(app_);
}

void Form51::Option7_Click() {
  app_.shadedView->InitShadedContext();
  Option11.SetValue(true);
}

void Form51::Picture3_MouseDown(const MouseEvent& event) {
  app_.shadedView->InitShadedContext();
  previewX_ = ToPosition(event.x);
  previewY_ = ToPosition(event.y);
  isPreviewDragged_ = true;
  app_.shadedView->DrawPreview();
}

void Form51::Picture3_MouseMove(const MouseEvent& event) {
  if (!isPreviewDragged_) return;
  ShadedView& shaded = *app_.shadedView;
  shaded.DragPose(event, double{event.x} - previewX_, double{event.y} - previewY_);
  previewX_ = ToPosition(event.x);
  previewY_ = ToPosition(event.y);
  Option11.value() ? RefreshViews(app_) : shaded.DrawPreview();
}

void Form51::Command5_Click() {
  Trapped(app_.faults, "Form51.Command5", [this] { Label24.SetCaption(Calculated(Text10, Text8, Text9)); });
}

void Form51::Command3_Click() {
  Trapped(app_.faults, "Form51.Command3", [this] { Label21.SetCaption(Calculated(Text7, Text5, Text4)); });
}

}  // namespace pelorium

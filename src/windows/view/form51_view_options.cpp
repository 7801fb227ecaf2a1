// "View Options".
#include "windows/view/form51_view_options.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "core/part_operations.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/form36_view.h"
#include "windows/view/shaded_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

// a * b / c in general form; a divisor of 0 is a fault, which leaves the label as it is.
std::string Calculated(const TextBox& a, const TextBox& b, const TextBox& c) {
  if (c.Number() == 0) throw Fault(FaultKind::DivisionByZero, c.FullName());
  return GeneralForm(a.Number() * b.Number() / c.Number());
}

}  // namespace

Form51::Form51(App& app) : ToolWindow(app, "Form51", "View Options") {
  HScroll4.onChange = [this] { HScroll4_Change(); };
  HScroll3.onChange = [this] { HScroll3_Change(); };
  HScroll6.onChange = [this] { HScroll6_Change(); };
  HScroll1.onChange = HScroll13.onChange = [this] { Zoom_Change(); };
  for (auto [bar, label] : {std::pair{&HScroll7, &Label12}, {&HScroll5, &Label10}}) {
    bar->onChange = [this, bar, label] {
      label->SetCaption(std::to_string(bar->value()));
      TellFaceRangeChosen(app_);
      RefreshViews(app_);
    };
  }
  Command17.onClick = [this](const Click&) { HScroll6.SetValue(0); };
  Command26.onClick = [this](const Click& click) { app_.view->form36.ZoomByButton(click); };
  Command1.onClick = [this](const Click&) { RefreshViews(app_); };
  Command2.onClick = [this](const Click&) { Command2_Click(); };
  Option7.onClick = [this](const Click&) { Option7_Click(); };
  OnEdit(
      Command5, [this] { Label24.SetCaption(Calculated(Text10, Text8, Text9)); }, kChangeOnly);
  OnEdit(
      Command3, [this] { Label21.SetCaption(Calculated(Text7, Text5, Text4)); }, kChangeOnly);
  for (ScrollBar* bar : {&HScroll7, &HScroll5}) app_.history->held.Carry(*bar);
  SetRole(WindowRole::Options);
  BindViews();
  BindPreview();
  SetLayout(DeclareLayout());
}

// Everything that only changes what the picture shows.
void Form51::BindViews() {
  HScroll8.onChange = HScroll9.onChange = [this] { RefreshViews(app_); };
  for (Control* control : std::initializer_list<Control*>{
           &Option2, &Option3, &Option4, &Option5, &Option6, &Option16, &Option11, &Check1, &Check3, &Check9,
           &Check10, &Check12, &Check13, &Check14, &Check15, &Check16, &Check17, &Check21, &Check30}) {
    control->onClick = [this](const Click&) { RefreshViews(app_); };
  }
  for (Control* control : std::initializer_list<Control*>{&Option1, &Check7}) {
    control->onClick = [this](const Click&) {
      TellViewOptionChosen(app_);
      RefreshViews(app_);
    };
  }
}

// The preview shows Y upward, as the view does.
void Form51::BindPreview() {
  Picture3.picture().SetScale(kPreviewSide, -kPreviewSide);
  Picture3.onMouseDown = [this](const MouseEvent& event) { Picture3_MouseDown(event); };
  Picture3.onMouseMove = [this](const MouseEvent& event) { Picture3_MouseMove(event); };
  Picture3.onMouseUp = [this](const MouseEvent&) { preview_.LetGo(); };
}

LayoutItem Form51::DeclareLayout() {
  return Column({
      Frame("Part and profile", {BarRow(HScroll4), BarRow(HScroll3), BarRow(HScroll6, {&Label17}),
                                 BarRow(HScroll2), Flow({&Command17})}),
      Frame("View", {Flow({&Option1, &Option4, &Option2, &Option5, &Option6, &Option16, &Option3, &Option11,
                           &Option7, &Command2})}),
      Frame("Shaded", {Row({Single(Picture3),
                            Column({Single(LeftDragHint), Single(RightDragHint), Single(ShiftDragHint)})})}),
      Frame("Show", {Flow({&Check1, &Check30, &Check7, &Check10, &Check9, &Check3, &Check14, &Check16,
                           &Check12, &Check15, &Check17, &Check13, &Check21})}),
      Frame("Faces",
            {BarRow(HScroll7, {&Label12}), BarRow(HScroll5, {&Label10}), Single(Label3), Single(Label19)}),
      Frame("Zoom and grid", {Flow({&Command26, &Command1}), BarRow(HScroll8), BarRow(HScroll9),
                              BarRow(HScroll13, {&Label33}), BarRow(HScroll1)}),
      Frame("Mouse", {Flow({&Check8, &Check4, &Check5, &Check2, &Check6})}),
      Frame("Calc", {Row({Labelled("", Text10), Labelled("*", Text8), Labelled("/", Text9), Single(Command5),
                          Single(Label24)}),
                     Row({Labelled("", Text7), Labelled("*", Text5), Labelled("/", Text4), Single(Command3),
                          Single(Label21)})}),
  });
}

void Form51::Load() {
  HScroll3.SetMax(kMaxLayer);
  HScroll6.SetMax(kMaxLayer);
  for (ScrollBar* faces : {&HScroll5, &HScroll7}) faces->SetMax(kMaxFaces);
  HScroll4.SetMax(kUserParts - 1);
  CountsFollowed();
}

void Form51::ShowCount() {
  const int count = ReadModel(app_).Profile(CurrentProfile(app_)).count;
  Label17.SetCaption(std::to_string(count));
  HScroll6.SetValueWidening(count);
}

void Form51::ShowProfileCount() {
  ShowCount();
  TellLayerShown(app_, ReadModel(app_).Profile(CurrentProfile(app_)).count);
}

void Form51::ShowProfile() {
  ShowProfileCount();
  TellProfileChosen(app_);
}

// The face range ends at the last face; after new counts it starts at the first.
void Form51::CountsChanged(Counts which) {
  if (which == Counts::Points) return;
  const int faces =
      std::max<int>(0, ReadModel(app_).Part(CurrentPart(app_)).maxfaces);  // a count may stand at -1
  HScroll7.SetMax(std::max(1, faces));
  HScroll5.SetMax(faces);
  HScroll5.SetValue(faces);
  if (which == Counts::All) HScroll7.SetValue(1);
}

void Form51::CountsRestored() {
  const int faces = std::max<int>(0, ReadModel(app_).Part(CurrentPart(app_)).maxfaces);
  HScroll7.ShowMax(std::max(1, faces));
  HScroll5.ShowMax(faces);
}

void Form51::RecordsRestored() {
  Label12.SetCaption(std::to_string(HScroll7.value()));
  Label10.SetCaption(std::to_string(HScroll5.value()));
  CountsFollowed();
  const int count = ReadModel(app_).Profile(CurrentProfile(app_)).count;
  Label17.SetCaption(std::to_string(count));
  HScroll6.ShowMax(std::max(count, HScroll6.max()));
  HScroll6.Show(count);
}

void Form51::CountsFollowed() { Label3.SetCaption(CountCaption(app_.model, CurrentPart(app_))); }

void Form51::HScroll4_Change() {
  Edit(HScroll4,
       [this] {
         FollowCounts(app_);
         FollowSections(app_);
         TellPartChosen(app_);
       },
       {.syncs = false, .holds = true});
}

// The point that Edit Profile has chosen stays: it shows where that point is in the profile.
void Form51::HScroll3_Change() {
  ShowCount();
  TellProfileChosen(app_);
  RefreshViews(app_);
}

void Form51::HScroll6_Change() {
  app_.model.Profile(CurrentProfile(app_)).count = Narrow<std::int16_t>(HScroll6.value());
  HScroll2.box.SetText(std::to_string(HScroll6.value()));
  Label17.SetCaption(std::to_string(HScroll6.value()));
  RefreshViews(app_);
}

void Form51::Zoom_Change() {
  constexpr double kZoomUnits = 10000;
  Label33.SetCaption(GeneralForm(HScroll13.value() / kZoomUnits));
  RefreshViews(app_);
}

ShadedView& Form51::Shaded() const { return *app_.view->shadedView; }

void Form51::Command2_Click() {
  Option11.SetValue(true);
  Shaded().InitShadedContext();
  RefreshViews(app_);
}

void Form51::Option7_Click() {
  Shaded().InitShadedContext();
  Option11.SetValue(true);
}

void Form51::Picture3_MouseDown(const MouseEvent& event) {
  Shaded().InitShadedContext();
  preview_.Press(event);
  Shaded().DrawPreview();
}

void Form51::Picture3_MouseMove(const MouseEvent& event) {
  if (!preview_.isActive()) return;
  ShadedView& shaded = Shaded();
  shaded.DragPose(event, preview_.TakeStep(event));
  Option11.value() ? RefreshViews(app_) : shaded.DrawPreview();
}

}  // namespace pelorium

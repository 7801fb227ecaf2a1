// "More Edit of Profile ".
#include "windows/profiles/formulas3frm_edit_profile_ranges.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/numbers.h"
#include "geometry/grid.h"
#include "profiles/keep_finite.h"
#include "windows/profiles/formulas_edit_profile.h"
#include "windows/profiles/profiles_windows.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

Formulas3Frm::Formulas3Frm(App& app)
    : ToolWindow(app, "Formulas3frm", "More Edit of Profile "),
      view(*this, app),
      drag_(
          app, Picture1, Option2, Option3,
          {[this] { return DraggedBlock(); }, [this] { return HScroll4.value(); }, [this] { ShowEdit(); }}) {
  view.Option8.SetCaption("Shaded ");
  BindParameters();
  BindEdits();
  Command7.onClick = [this](const Click&) { Command7_Click(); };
  OnEdit(Command8, [this] { Command8_Click(); }, {.holds = true});
  SetLayout(DeclareLayout());
}

void Formulas3Frm::BindParameters() {
  HScroll3.onChange = [this] { app_.view->form51.HScroll3.SetValue(HScroll3.value()); };
  HScroll14.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll14.value()); };
}

// `edit` is told the block and whether the right button asks for the way back.
template <typename BlockEdit>
void Formulas3Frm::BindEdit(PushButton& button, BlockEdit edit) {
  button.actsOnMouseDown = true;
  OnEdit(
      button,
      [this, edit](const Click& click) {
        EditKeepingFinite(app_.model, [&] { edit(ReadBlock(), click.IsRight()); });
        ShowEdit();
      },
      kChangeOnly);
}

void Formulas3Frm::BindEdits() {
  using enum Axis;
  ModelStore& model = app_.model;
  for (auto [button, axis] : {std::pair{&Command1, X}, {&Command2, Y}, {&Command3, Z}}) {
    BindEdit(*button, [this, &model, axis](const ProfileBlock& block, bool back) {
      MoveBlock(model, block, {axis}, back ? -Text1.Number() : Text1.Number());
    });
  }
  for (auto [button, axis] : {std::pair{&Command23, X}, {&Command24, Y}, {&Command25, Z}}) {
    BindEdit(*button, [this, &model, axis](const ProfileBlock& block, bool back) {
      SpaceBlock(model, block, axis, back ? -HScroll7.Number() : HScroll7.Number());
    });
  }
  struct Turning {
    PushButton* button;
    Axis p, q;
  };
  for (const Turning& t :
       std::initializer_list<Turning>{{&Command4, X, Y}, {&Command5, Y, Z}, {&Command6, X, Z}}) {
    BindEdit(*t.button, [this, &model, t](const ProfileBlock& block, bool back) {
      TurnBlock(model, block, t.p, t.q, back ? -Text2.Number() : Text2.Number(), Origin(app_));
    });
  }
  struct Scaling {
    PushButton* button;
    BlockAxes axes;
  };
  for (const Scaling& s : std::initializer_list<Scaling>{{&Command35, {X}},
                                                         {&Command38, {Y}},
                                                         {&Command41, {Z}},
                                                         {&Command39, {X, Y}},
                                                         {&Command9, {X, Z}},
                                                         {&Command43, {X, Y, Z}}}) {
    BindEdit(*s.button, [this, &model, s](const ProfileBlock& block, bool back) {
      ScaleBlock(model, block, s.axes, back ? Text10.Number() : Text20.Number());
    });
  }
  BindEdit(Command10,
           [this, &model](const ProfileBlock& block, bool) { CopyToBlock(model, block, HScroll25.value()); });
}

ProfileBlock Formulas3Frm::ReadBlock() const {
  return {HScroll12.value(), HScroll13.value(), HScroll23.value(), HScroll24.value(), HScroll9.value()};
}

// Rows are as long as the current profile, whichever profiles they are.
ProfileStack Formulas3Frm::ReadStack() const {
  const ProfileHeader& header = ReadModel(app_).Profile(CurrentProfile(app_));
  return {HScroll1.value(), HScroll2.value(), header.first, header.count};
}

void Formulas3Frm::ProfileChosen() { HScroll3.SetValue(CurrentProfile(app_)); }

void Formulas3Frm::PartChosen() { HScroll14.SetValue(CurrentPart(app_)); }

// The chosen point shown elsewhere may have moved.
void Formulas3Frm::ShowEdit() {
  app_.profiles->formulas.ProfileChosen();
  RefreshViews(app_);
}

// With the range's ends crossed, the profile to copy is dragged alone.
ProfileBlock Formulas3Frm::DraggedBlock() const {
  ProfileBlock block = ReadBlock();
  if (block.firstProfile > block.lastProfile) block.firstProfile = block.lastProfile = HScroll25.value();
  return block;
}

void Formulas3Frm::Command7_Click() {
  const int part = CurrentPart(app_);
  const int after = Check1.value() ? std::max<int>(0, ReadModel(app_).Part(part).maxpoints) : 0;
  LayProfiles(app_.model, part, ReadStack(), after);
  app_.model.Part(part).grid.reset();
  FollowCounts(app_);
  SyncFaceCorners(app_);
  RefreshViews(app_);
}

void Formulas3Frm::Command8_Click() {
  if (Check3.value()) {
    Command10.Press();
    Command24.Press();
  }
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  const ProfileStack stack = ReadStack();
  int pointsBefore = part.maxpoints;
  if (Check2.value()) {
    Command7.Press();
  } else {
    pointsBefore = std::max(0, pointsBefore - stack.Rows() * stack.Width());  // the stack was laid last
  }
  BuildFaces(stack, Check1.value() ? pointsBefore : 0);
}

void Formulas3Frm::BuildFaces(const ProfileStack& stack, int pointsBefore) {
  const int part = CurrentPart(app_);
  app_.links.freeFaceRange(stack.lastPoint - 2, stack.Width());
  GridPlace place;
  if (Check1.value()) place = {std::max<int>(0, ReadModel(app_).Part(part).maxfaces), pointsBefore};
  pelorium::BuildGridFaces(app_.model, part, stack.Width(), stack.Rows(), Seam::Open, place);
  app_.model.Part(part).Sections = Narrow<std::int16_t>(std::max(0, stack.Width() - 1));
  app_.model.Part(part).count = 0;
  app_.model.Part(part).grid.reset();  // its caps are its own
  PressCaps(stack, pointsBefore);
  FollowGenerated(app_);
}

// A cap closes all points of a row but the last, which ends the drawn profile where it began.
void Formulas3Frm::PressCaps(const ProfileStack& stack, int pointsBefore) {
  const bool canBeCapped = stack.lastPoint >= 3 && stack.Rows() >= 1;
  for (auto [tick, layer] : {std::pair{&Check5, stack.Rows() - 1}, {&Check4, 0}}) {
    std::optional<int> start;
    if (tick->value() && canBeCapped) start = pointsBefore + layer * stack.Width() + 1;
    app_.links.endCap(layer, start);
  }
}

// One narrow column: the picture stays in sight while the range is edited.
LayoutItem Formulas3Frm::DeclareLayout() {
  return Column({
      Frame("Range", {BarRow(HScroll3), BarRow(HScroll12), BarRow(HScroll13)}),
      Frame("Pts Range Min/Max", {BarRow(HScroll23), BarRow(HScroll24), BarRow(HScroll9)}),
      Frame("Move, turn, scale",
            {Labelled("Amount", Text1), Flow({&Command1, &Command2, &Command3}), Labelled("Deg", Text2),
             Flow({&Command4, &Command5, &Command6}), Row({Labelled("Scale amnt", Text10), Single(Text20)}),
             Flow({&Command35, &Command38, &Command41, &Command39, &Command9, &Command43})}),
      Frame("Copy and space", {BarRow(HScroll25), Flow({&Command10}), BarRow(HScroll7),
                               Flow({&Command23, &Command24, &Command25})}),
      Frame("Edit Range of Profiles",
            {Flow({&Option1, &Option2, &Option3}), BarRow(HScroll4), Single(Picture1)}),
      Frame("Part from profiles",
            {BarRow(HScroll14), BarRow(HScroll1), BarRow(HScroll2),
             Flow({&Check1, &Check2, &Check3, &Check4, &Check5}), Flow({&Command7, &Command8})}),
      Frame("View", {Flow(view.All())}, "options for profile view/editing perspective"),
      Frame("Profiles Min/Max", {BarRow(HScroll22), BarRow(HScroll29)}),
  });
}

}  // namespace pelorium

// "Precise Edit".
#include "windows/view/form5_precise_edit.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "core/model_store.h"
#include "facetools/switch_faces.h"
#include "geometry/edit_chosen_points.h"
#include "geometry/join_ends.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

// What a button works on and by how much, as the controls stand when it is pressed. For the right mouse
// button the amounts are those of the way back.
struct EditParams {
  ModelStore& model;
  ChosenPoints chosen;
  Vec3 origin;
  double move = 0;     // units
  double degrees = 0;  // of a turn
  double factor = 1;   // of a scale
  Axis flip = Axis::X;
  Axis equalTo = Axis::X, equalFrom = Axis::Y;
  int ringWidth = 0, firstLayer = 0, lastLayer = 0;
  int firstFace = 1, lastFace = 0;
  bool switchesOn = true;
};

namespace {

using Axes = std::vector<Axis>;

void Move(const EditParams& p, const Axes& axes) {
  for (const Axis axis : axes) MoveChosen(p.model, p.chosen, axis, p.move);
}

// From the second axis towards the first.
void TurnAll(const EditParams& p, const Axes& axes) {
  TurnChosen(p.model, p.chosen, {{axes[0], axes[1], Turn::By(p.degrees)}}, p.origin);
}

void TurnInSteps(const EditParams& p, const Axes& axes) {
  TurnChosenProgressively(p.model, p.chosen,
                          {axes[0], axes[1], p.degrees, p.ringWidth, p.firstLayer, p.lastLayer}, p.origin);
}

void Scale(const EditParams& p, const Axes& axes) {
  for (const Axis axis : axes) ScaleChosen(p.model, p.chosen, axis, p.factor, p.origin);
}

void Flip(const EditParams& p, const Axes&) { MirrorChosen(p.model, p.chosen, p.flip, p.origin); }

void SetEqual(const EditParams& p, const Axes&) { EqualiseChosen(p.model, p.chosen, p.equalTo, p.equalFrom); }

void SwitchAllFaces(const EditParams& p, const Axes&) {
  SwitchFaces(p.model, p.chosen.part, 1, kMaxFaces, p.switchesOn);
}

void InvertFaceRange(const EditParams& p, const Axes&) {
  InvertFaces(p.model, p.chosen.part, p.firstFace, p.lastFace);
}

void JoinLastToFirst(const EditParams& p, const Axes&) {
  JoinLayerEnds(p.model, p.chosen.part, p.ringWidth, JoinedLayer::Last);
}

void JoinFirstToLast(const EditParams& p, const Axes&) {
  JoinLayerEnds(p.model, p.chosen.part, p.ringWidth, JoinedLayer::First);
}

// A button of a table.
struct EditButton {
  std::string_view frame;  // the title of the frame that it stands in
  const char* name;
  const char* caption;
  void (*edit)(const EditParams&, const Axes&);
  Axes axes;
  const char* toolTip;
};

constexpr std::string_view kMove = "Move", kTurn = "Turn", kTurnInSteps = "Rotate in progressive steps",
                           kScale = "Scale", kFlip = "Flip", kSetEqual = "Set equal", kFaces = "Faces",
                           kJoinEnds = "Join Ends";

constexpr const char* kMoveTip = "left button moves the chosen points up by Move amnt, right button down";
constexpr const char* kTurnTip =
    "left button turns the chosen points about the origin by Rotate amt, right button back";
constexpr const char* kTurnInStepsTip =
    "left button turns the chosen points of Layers Start by Rotate amt, those of the next layer by twice as "
    "much "
    "and so on to Layers End, right button back";
constexpr const char* kScaleTip =
    "scales the chosen points about the origin: left button by Scale amnt +, right button by Scale amnt -";
constexpr const char* kFlipTip = "either button: mirrors the chosen points about the origin along the axis";
constexpr const char* kSetEqualTip =
    "left button sets the first axis of the pair to the second, right button the second to the first, in all "
    "chosen points";
constexpr const char* kSwitchTip = "left button switches all faces of the Part on, right button off";
constexpr const char* kInvertTip =
    "either button: switches the faces from Faces Start to Faces End of the View Options the other way";
constexpr const char* kLastToFirstTip =
    "Join Ends Last = First, either button: the last layer of points goes onto the first";
constexpr const char* kFirstToLastTip =
    "Join Ends  First = Last, either button: the first layer of points goes onto the last";

const std::array<EditButton, 22> kEdits = {{
    {kMove, "Command53", "X", Move, {Axis::X}, kMoveTip},
    {kMove, "Command55", "Y", Move, {Axis::Y}, kMoveTip},
    {kMove, "Command31", "Z", Move, {Axis::Z}, kMoveTip},

    {kTurn, "Command10", "Spin Z-Axis", TurnAll, {Axis::Y, Axis::X}, kTurnTip},
    {kTurn, "Command9", "Turn Y-Axis", TurnAll, {Axis::X, Axis::Z}, kTurnTip},
    {kTurn, "Command18", "Rotate X-Axis", TurnAll, {Axis::Y, Axis::Z}, kTurnTip},

    {kTurnInSteps, "Command5", "Prog Spin", TurnInSteps, {Axis::Y, Axis::X}, kTurnInStepsTip},
    {kTurnInSteps, "Command6", "Prog Turn", TurnInSteps, {Axis::X, Axis::Z}, kTurnInStepsTip},
    {kTurnInSteps, "Command14", "Prog Rot", TurnInSteps, {Axis::Y, Axis::Z}, kTurnInStepsTip},

    {kScale, "Command35", " X", Scale, {Axis::X}, kScaleTip},
    {kScale, "Command38", " Y", Scale, {Axis::Y}, kScaleTip},
    {kScale, "Command41", " Z", Scale, {Axis::Z}, kScaleTip},
    {kScale, "Command39", " XY", Scale, {Axis::X, Axis::Y}, kScaleTip},
    {kScale, "Command15", " YZ", Scale, {Axis::Y, Axis::Z}, kScaleTip},
    {kScale, "Command17", "XZ", Scale, {Axis::X, Axis::Z}, kScaleTip},
    {kScale, "Command43", "XYZ", Scale, {Axis::X, Axis::Y, Axis::Z}, kScaleTip},

    {kFlip, "Command4", "Flip", Flip, {}, kFlipTip},
    {kSetEqual, "Command3", "Command3", SetEqual, {}, kSetEqualTip},

    {kFaces, "Command12", "Faces  On/Off", SwitchAllFaces, {}, kSwitchTip},
    {kFaces, "Command16", "Faces Invert", InvertFaceRange, {}, kInvertTip},

    {kJoinEnds, "Command1", "L = F", JoinLastToFirst, {}, kLastToFirstTip},
    {kJoinEnds, "Command2", "F = L", JoinFirstToLast, {}, kFirstToLastTip},
}};

}  // namespace

Form5::Form5(App& app) : ToolWindow(app, "Form5", "Precise Edit") {
  for (TextBox* box : {&Text5, &Text9, &Text3}) {
    box->onKeyUp = [this] { RefreshViews(app_); };
    app_.history->held.Hold(*box);
  }
  for (ScrollBar* bar : {&HScroll20, &HScroll25, &HScroll5}) app_.history->held.Carry(*bar);
  BindRanges();
  HScroll11.onChange = [this] { app_.view->form51.HScroll4.SetValue(HScroll11.value()); };
  OnEdit(Command19, [this] { Command19_Click(); });
  MakeEditButtons();
  SetLayout(DeclareLayout());
}

void Form5::BindRanges() {
  for (BoxedBar* bar : {&HScroll20, &HScroll25}) bar->onChange = [this] { RefreshViews(app_); };
  struct Shift {
    PushButton& button;
    void (Form5::*shift)(int layers);
    int layers;
  };
  for (const Shift& s : std::initializer_list<Shift>{{Command7, &Form5::ShiftPoints, -1},
                                                     {Command8, &Form5::ShiftPoints, 1},
                                                     {Command11, &Form5::ShiftLayers, -1},
                                                     {Command13, &Form5::ShiftLayers, 1}}) {
    OnEdit(
        s.button, [this, s] { (this->*s.shift)(s.layers); }, kChangeOnly);
  }
}

void Form5::MakeEditButtons() {
  for (const EditButton& row : kEdits) {
    editButtons.push_back(std::make_unique<PushButton>(*this, row.name, row.caption, row.toolTip));
    OnEdit(*editButtons.back(),
           [this, &row](const Click& click) { row.edit(ReadEditParams(click), row.axes); });
  }
}

void Form5::Load() {
  for (ScrollBar* layers : {&HScroll1, &HScroll2, &HScroll5}) layers->SetMax(kMaxLayer);
  HScroll11.SetMax(kUserParts - 1);
  const int points = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  HScroll25.SetMax(points);
  HScroll25.SetValue(points);
  for (ScrollBar* range : {&HScroll20, &HScroll25}) range->SetMax(kStartPoints);
}

Axis Form5::FlipAxis() const { return Option1.value() ? Axis::Z : Option2.value() ? Axis::Y : Axis::X; }

EditParams Form5::ReadEditParams(const Click& click) const {
  const double sense = click.IsRight() ? -1 : 1;
  EditParams p{app_.model, Chosen(app_), Origin(app_)};
  p.chosen.step = HScroll9.value();
  p.move = sense * HScroll10.Number();
  p.degrees = sense * Text19.Number();
  p.factor = click.IsRight() ? Text10.Number() : Text20.Number();
  p.flip = FlipAxis();
  p.equalTo = Option6.value() ? Axis::Y : Axis::X;
  p.equalFrom = Option4.value() ? Axis::Y : Axis::Z;
  if (click.IsRight()) std::swap(p.equalTo, p.equalFrom);
  p.ringWidth = HScroll5.value();
  p.firstLayer = HScroll1.value();
  p.lastLayer = HScroll2.value();
  p.firstFace = FaceRangeStart(app_);
  p.lastFace = FaceRangeEnd(app_);
  p.switchesOn = !click.IsRight();
  return p;
}

// The bars open as far as it takes: their limits may lag behind a Part that grows point by point, and layers
// past its last point make an empty choice, not a fault.
void Form5::ChoosePoints(int first, int last) {
  HScroll20.SetValueWidening(first);
  HScroll25.SetValueWidening(last);
}

void Form5::ShiftPoints(int layers) {
  const int by = layers * HScroll5.value();
  const int first = HScroll20.value() + by, last = HScroll25.value() + by;
  const int highest = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  if (first >= 1 && last >= 0 && last <= highest) ChoosePoints(first, last);
}

void Form5::ShiftLayers(int layers) {
  const int first = HScroll1.value() + layers, last = HScroll2.value() + layers;
  if (std::min(first, last) < 0 || std::max(first, last) > kMaxLayer) return;
  HScroll1.SetValue(first);
  HScroll2.SetValue(last);
  const int width = HScroll5.value();
  const int highest = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  ChoosePoints(first * width + 1, std::min((last + 1) * width, highest));
}

// A ring has a section at least.
void Form5::Command19_Click() {
  app_.model.Part(CurrentPart(app_)).Sections = Narrow<std::int16_t>(std::max(1, HScroll5.value() - 1));
}

void Form5::PartChosen() { HScroll11.SetValue(CurrentPart(app_)); }

// A start above the new end goes to 1 in one step, before the limit can pull it; after new counts it does in
// any case.
void Form5::CountsChanged(Counts which) {
  if (which == Counts::Faces) return;
  const int points = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  HScroll25.SetMax(points);
  HScroll25.SetValue(points);
  const int highest = std::max(1, points);
  if (which == Counts::All || HScroll20.value() > highest) HScroll20.SetValue(1);
  HScroll20.SetMax(highest);
}

void Form5::CountsRestored() {
  const int points = ReadModel(app_).Part(CurrentPart(app_)).maxpoints;
  HScroll25.ShowMax(points);
  HScroll20.ShowMax(std::max(1, points));
}

LayoutItem Form5::ButtonRow(std::string_view frame, std::vector<Control*> before) const {
  for (std::size_t i = 0; i < kEdits.size(); ++i) {
    if (kEdits[i].frame == frame) before.push_back(editButtons[i].get());
  }
  return Flow(std::move(before));
}

// One narrow column, so that the picture stays in sight; each amount stands with its buttons.
LayoutItem Form5::DeclareLayout() {
  const auto frame = [this](std::string_view title, std::vector<LayoutItem> items,
                            std::vector<Control*> before = {}) {
    items.push_back(ButtonRow(title, std::move(before)));
    return Frame(std::string(title), std::move(items));
  };
  return Column({
      Frame("Origin", {Labelled("Origin Loc X", Text5), Labelled("Origin Loc Y", Text9),
                       Labelled("Origin Loc Z", Text3)}),
      Frame("Chosen points",
            {BarRow(HScroll20, {&Command7}), BarRow(HScroll25, {&Command8}), BarRow(HScroll9),
             BarRow(HScroll1, {&Command11}), BarRow(HScroll2, {&Command13}), BarRow(HScroll5, {&Command19}),
             BarRow(HScroll11)}),
      frame(kMove, {BarRow(HScroll10)}),
      frame(kTurn, {Labelled("Rotate amt", Text19)}),
      frame(kTurnInSteps, {}),
      frame(kScale, {Row({Labelled("Scale amnt", Text10), Single(Text20)})}),
      frame(kFlip, {Single(Check2)}, {&Option3, &Option2, &Option1}),
      frame(kSetEqual, {}, {&Option4, &Option5, &Option6}),
      Row({frame(kFaces, {}), frame(kJoinEnds, {})}),
      Single(Label1),
  });
}

}  // namespace pelorium

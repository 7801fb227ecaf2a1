// "Face Info/Edit".
#include "windows/facetools/editbyface_face_info.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "core/record_entry.h"
#include "facetools/draw_face.h"
#include "facetools/face_measures.h"
#include "facetools/flatten_face.h"
#include "facetools/turn_points.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/specialeffects5_edit_geometry.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/history.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kShownDecimals = 2;
constexpr std::array<Axis, 3> kAxes = {Axis::X, Axis::Y, Axis::Z};

void FillBox(TextBox& box, const std::string& text, bool evenIfTyped) {
  if (evenIfTyped || !box.isTyped()) box.SetText(text);
}

// What the box stands for in the end, once the typing is over.
void ShowStored(TextBox& box, int stored) {
  if (RoundHalfEven(box.Number()) != stored) box.ShowInstead(std::to_string(stored));
}

}  // namespace

EditByFace::EditByFace(App& app) : ToolWindow(app, "editbyface", "Face Info/Edit") {
  BindPoint();
  BindFace();
  BindCounts();
  BindOrigin();
  BindTurns();
  BindPicture();
  for (ScrollBar* bar : {&VScroll1, &VScroll2}) app_.history->held.Carry(*bar);
  SetLayout(DeclareLayout());
}

void EditByFace::BindPoint() {
  OnEdit(
      VScroll1, [this] { ShowPoint(Fill::All); }, kRefreshOnly);
  Frame2.onDoubleClick = [this] { TakePickedPoint(); };
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4}) {
    box->onKeyUp = box->onDoubleClick = [this, box] { Edit(*box, [this] { StorePoint(); }); };
  }
  for (auto [button, axis] : {std::pair{&Command23, Axis::X}, {&Command24, Axis::Y}, {&Command25, Axis::Z}}) {
    button->actsOnMouseDown = true;
    OnEdit(*button, [this, axis](const Click& click) {
      MovePoint(axis, click.IsRight() ? -HScroll1.Number() : HScroll1.Number());
    });
  }
}

void EditByFace::BindFace() {
  VScroll2.onChange = [this] { VScroll2_Change(); };
  for (TextBox* box : {&Text5, &Text6, &Text7, &Text8}) {
    box->onKeyUp = [this, box] { Edit(*box, [this] { StoreCorners(); }); };
  }
  for (TextBox* box : cornerBoxes_) {
    box->onDoubleClick = [this, box] {
      Edit(*box, [this, box] {
        box->SetText(app_.view->form36.Label16.caption());
        StoreCorners();
      });
    };
  }
  for (TextBox* box : placeBoxes_) {
    box->onKeyUp = [this, box] { Edit(*box, [this] { StorePlaces(); }); };
  }
}

void EditByFace::BindCounts() {
  for (TextBox* box : {&Text9, &Text10}) {
    box->onKeyUp = [this, box] { Edit(*box, [this] { StoreCounts(); }, {.holds = true}); };
  }
  OnEdit(Command5, [this] { StoreCounts(); }, {.holds = true});
  OnEdit(Command22, [this] { ShowLimits(); }, {.syncs = false, .refreshes = false, .holds = true});
  Frame3.onDoubleClick = [this] { Command22.Press(); };
}

void EditByFace::BindOrigin() {
  struct Place {
    PushButton& button;
    Vec3 (*of)(const FaceCorners&);
  };
  for (const Place& p : std::initializer_list<Place>{{Command7, [](const FaceCorners& f) { return f.a; }},
                                                     {Command9, [](const FaceCorners& f) { return f.b; }},
                                                     {Command10, [](const FaceCorners& f) { return f.c; }},
                                                     {Command11, CentreOf}}) {
    OnEdit(
        p.button,
        [this, of = p.of] {
          SetOrigin(app_, of(CornersOf(app_.model, CurrentPart(app_), VScroll2.value())));
        },
        kRefreshOnly);
  }
}

void EditByFace::BindTurns() {
  using enum Axis;
  struct Measure {
    PushButton& button;
    Vec3 FaceCorners::*other;  // the end of the edge that begins at corner 1
    Axis rise, run;
  };
  for (const Measure& m : std::initializer_list<Measure>{{Command15, &FaceCorners::b, X, Y},
                                                         {Command16, &FaceCorners::c, Z, X},
                                                         {Command17, &FaceCorners::b, Z, Y}}) {
    OnEdit(
        m.button,
        [this, m] {
          const FaceCorners f = CornersOf(app_.model, CurrentPart(app_), VScroll2.value());
          const Vec3 &a = f.a, &b = f.*m.other;
          const double angle = SlopeAngle(Coordinate(a, m.rise) - Coordinate(b, m.rise),
                                          Coordinate(a, m.run) - Coordinate(b, m.run));
          Label15.SetCaption(GeneralForm(angle * kShownDegreesPerRadian));
        },
        kChangeOnly);
  }
  struct Plane {
    PushButton& button;
    Axis p, q;
  };
  for (const Plane& t :
       std::initializer_list<Plane>{{Command2, X, Y}, {Command12, Y, Z}, {Command13, X, Z}}) {
    t.button.actsOnMouseDown = true;
    OnEdit(t.button, [this, p = t.p, q = t.q](const Click& click) { Turn(click, p, q); });
  }
  OnEdit(Command18, [this] { Command18_Click(); });
  OnEdit(Command19, [this] { Command19_Click(); });
  Command8.actsOnMouseDown = true;
  OnEdit(Command8, [this](const Click& click) { Command8_Click(click); });
}

void EditByFace::BindPicture() {
  Picture1.onMouseDown = [this](const MouseEvent&) {
    Edit(
        VScroll2, [this] { ShowFace(Fill::All); }, kChangeOnly);
    FlattenAutomatically();
  };
  Picture1.onResize = [this](int width, int height) {
    Picture1.picture().Resize(width, height);
    DrawFacePicture();
  };
  OnEdit(
      VScroll3, [this] { Picture1.Resize(VScroll3.value(), VScroll3.value()); }, kChangeOnly);
  Command14.actsOnMouseDown = true;
  OnFile(Command14, [this] { SavePicture(); });
}

void EditByFace::CountsChanged(Counts which) {
  if (which == Counts::Points) return;
  ShowLimits();
  RecordsRestored();
}

void EditByFace::CountsRestored() {
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  const int points = part.maxpoints, faces = std::max<int>(0, part.maxfaces);
  VScroll1.ShowMax(points);
  VScroll2.ShowMax(std::max(1, faces));
  Text9.SetText(std::to_string(points));
  Text10.SetText(std::to_string(faces));
}

void EditByFace::RecordsRestored() {
  Trapped(app_.drawingFaults, VScroll2.FullName(), [this] {
    ShowPoint(Fill::All);
    ShowFace(Fill::All);
  });
}

void EditByFace::ViewsRefreshed(const ViewSettings&) {
  if (!visible()) return;
  Trapped(app_.drawingFaults, VScroll2.FullName(), [this] {
    ShowPoint(Fill::UntypedOnly);
    ShowFace(Fill::UntypedOnly);
  });
}

void EditByFace::ShowLimits() {
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  const int points = part.maxpoints, faces = std::max<int>(0, part.maxfaces);  // a count may stand at -1
  if (VScroll1.value() > points) VScroll1.SetValue(0);
  VScroll1.SetMax(points);
  Text9.SetText(std::to_string(points));
  if (VScroll2.value() > std::max(1, faces)) VScroll2.SetValue(1);
  VScroll2.SetMax(std::max(1, faces));
  Text10.SetText(std::to_string(faces));
}

const FaceRec& EditByFace::ChosenFace() const {
  return ReadModel(app_).Faces(CurrentPart(app_), VScroll2.value());
}

void EditByFace::ShowPoint(Fill fill) {
  Label4.SetCaption(std::to_string(VScroll1.value()));
  const PointRec& point = ReadModel(app_).Points(CurrentPart(app_), VScroll1.value());
  for (std::size_t i = 0; i < kAxes.size(); ++i) {
    FillBox(*pointBoxes_[i], RoundedForm(Coordinate(point, kAxes[i]), kShownDecimals), fill == Fill::All);
  }
  FillBox(Text4, std::to_string(point.onoff), fill == Fill::All);
}

void EditByFace::ShowCorners(Fill fill) {
  const FaceRec& face = ChosenFace();
  const std::array<int, 3> numbers = {face.corner1pt, face.corner2pt, face.corner3pt};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    FillBox(*cornerBoxes_[i], std::to_string(numbers[i]), fill == Fill::All);
  }
  FillBox(Text8, std::to_string(face.onoff), fill == Fill::All);
}

void EditByFace::ShowPlaces(Fill fill) {
  const FaceCorners corners = CornersOf(app_.model, CurrentPart(app_), VScroll2.value());
  auto box = placeBoxes_.begin();
  for (const Vec3& place : {corners.a, corners.b, corners.c}) {
    for (const Axis axis : kAxes) {
      FillBox(**box++, RoundedForm(Coordinate(place, axis), kShownDecimals), fill == Fill::All);
    }
  }
  const EdgeLengths lengths = LengthsOf(corners);
  Label8.SetCaption(GeneralForm(lengths.ab));
  Label9.SetCaption(GeneralForm(lengths.bc));
  Label13.SetCaption(GeneralForm(lengths.ca));
}

void EditByFace::DrawFacePicture() {
  DrawFace(app_.model, CurrentPart(app_), VScroll2.value(), Picture1.picture());
  Picture1.NotifyChanged();
}

void EditByFace::ShowFace(Fill fill) {
  Label3.SetCaption(std::to_string(VScroll2.value()));
  ShowCorners(fill);
  ShowPlaces(fill);
  DrawFacePicture();
}

void EditByFace::StorePoint() {
  StorePointEntry(app_.model, CurrentPart(app_), VScroll1.value(),
                  {Text1.Number(), Text2.Number(), Text3.Number()}, Text4.Number());
}

void EditByFace::MovePoint(Axis axis, double by) {
  Coordinate(app_.model.Points(CurrentPart(app_), VScroll1.value()), axis) += by;
  ShowPoint(Fill::All);
}

void EditByFace::StoreCorners() {
  StoreFaceEntry(app_.model, CurrentPart(app_), VScroll2.value(),
                 {Text5.Number(), Text6.Number(), Text7.Number()}, Text8.Number());
  const FaceRec& face = ChosenFace();
  const std::array<int, 3> numbers = {face.corner1pt, face.corner2pt, face.corner3pt};
  for (std::size_t i = 0; i < numbers.size(); ++i) ShowStored(*cornerBoxes_[i], numbers[i]);
  ShowStored(Text8, face.onoff);
  ShowPlaces(Fill::All);
  DrawFacePicture();
}

// All nine numbers, so that what the boxes round is rounded in the model too.
void EditByFace::StorePlaces() {
  const FaceRec& face = ChosenFace();
  auto box = placeBoxes_.begin();
  for (const int corner : {face.corner1pt, face.corner2pt, face.corner3pt}) {
    PointRec& point = app_.model.Points(CurrentPart(app_), corner);
    for (const Axis axis : kAxes) Coordinate(point, axis) = (*box++)->Number();
  }
  ShowPlaces(Fill::UntypedOnly);
  DrawFacePicture();
}

void EditByFace::StoreCounts() {
  StoreCountEntry(app_.model, CurrentPart(app_), Text9.Number(), Text10.Number());
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  if (Text9.Number() > kMaxPoints) Text9.SetText(std::to_string(kMaxPoints));
  if (Text10.Number() > kMaxFaces) Text10.SetText(std::to_string(kMaxFaces));
  VScroll1.SetMax(part.maxpoints);
  VScroll2.SetMax(std::max<int>(VScroll2.min(), part.maxfaces));
}

void EditByFace::TakePickedPoint() {
  Edit(
      Frame2, [this] { VScroll1.SetValue(ToInteger<int>(Val(app_.view->form36.Label16.caption()))); },
      kChangeOnly);
}

void EditByFace::VScroll2_Change() {
  Edit(
      VScroll2, [this] { ShowFace(Fill::All); }, kRefreshOnly);
  if (app_.automaticActionsHeld > 0) return;
  if (Check1.value()) Trapped(app_.faults, VScroll2.FullName(), [this] { ChooseItsPoints(); });
  FlattenAutomatically();
}

void EditByFace::ChooseItsPoints() {
  app_.view->form51.HScroll5.SetValue(VScroll2.value());
  app_.view->form51.HScroll7.SetValue(VScroll2.value());
  app_.geometry->specialeffects5.Command5.Press();
}

void EditByFace::FlattenAutomatically() {
  if (Check2.value() && app_.automaticActionsHeld == 0) Command19.Press();
}

void EditByFace::Turn(const Click& click, Axis p, Axis q) {
  const double degrees = Val(Label15.caption());
  const double radians = (click.IsRight() ? -degrees : degrees) * kRadiansPerDegree;
  TurnPoints(app_.model, Chosen(app_), {p, q, radians}, Origin(app_));
  ShowFace(Fill::All);
}

void EditByFace::Command18_Click() {
  const int part = CurrentPart(app_), face = VScroll2.value();
  const FaceTurn turn = EvenTurn(app_.model, part, face);
  SetOrigin(app_, CornersOf(app_.model, part, face).c);
  TurnPoints(app_.model, Chosen(app_), turn, Origin(app_));
  ShowFace(Fill::All);
}

// The panel is drawn anew, but the automatic action does not start again.
void EditByFace::Command19_Click() {
  const int part = CurrentPart(app_), face = VScroll2.value();
  for (int step = 0; step < kFlatTurns; ++step) {
    const FaceTurn turn = FlatTurn(app_.model, part, face, step);
    SetOrigin(app_, CornersOf(app_.model, part, face).c);
    TurnPoints(app_.model, Chosen(app_), turn, Origin(app_));
  }
  ShowFace(Fill::All);
}

void EditByFace::Command8_Click(const Click& click) {
  const int part = CurrentPart(app_), face = VScroll2.value();
  const Vec3 normal = UnitNormal(app_.model, part, face);
  Text20.SetText(GeneralForm(normal.X));
  Text21.SetText(GeneralForm(normal.Y));
  Text22.SetText(GeneralForm(normal.Z));
  if (!click.IsRight()) LayFace(app_.model, part, face);
  ShowFace(Fill::All);
}

void EditByFace::SavePicture() {
  SavePictureFile(app_, "faces/face" + std::to_string(VScroll2.value()) + ".bmp", Picture1.picture());
}

// One narrow column: the view stays in sight.
LayoutItem EditByFace::DeclareLayout() {
  std::vector<LayoutItem> face = {
      BarRow(VScroll2, {&Label3}), Flow({&Check1, &Check2}),
      Headed(FaceHeader, Row({Single(Text5), Single(Text6), Single(Text7), Single(Text8)}))};
  for (std::size_t i = 0; i < 3; ++i) {
    TextBox* const* place = &placeBoxes_[3 * i];
    face.push_back(Row({Single(*cornerLabels_[i]), Single(*place[0]), Single(*place[1]), Single(*place[2])}));
  }
  return Column({
      Frame(Frame2, {BarRow(VScroll1, {&Label4}),
                     Headed(PointHeader, Row({Single(Text1), Single(Text2), Single(Text3), Single(Text4)})),
                     BarRow(HScroll1), Flow({&Command23, &Command24, &Command25})}),
      Frame(Frame3, std::move(face)),
      Frame("Face Line Lengths",
            {Row({Labelled("1-2", Label8), Labelled("2-3", Label9), Labelled("3-1", Label13)})}),
      Frame("Origin", {Flow({&Command7, &Command9, &Command10, &Command11})}),
      Frame("Angle", {Flow({&Command15, &Command16, &Command17, &Label15}),
                      Flow({&Command2, &Command12, &Command13})}),
      Frame("Flatten", {Flow({&Command18, &Command19, &Command8}),
                        Row({Single(Text20), Single(Text21), Single(Text22)})}),
      Frame("Max pts               Max Faces",
            {Row({Single(Text9), Single(Text10)}), Flow({&Command5, &Command22})}),
      BarRow(VScroll3),
      Single(Picture1),
      Flow({&Command14}),
  });
}

}  // namespace pelorium

// "freeface".
#include "windows/facetools/freeface_free_faces.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/numbers.h"
#include "geometry/profiles_to_points.h"
#include "windows/facetools/editbyface_face_info.h"
#include "windows/facetools/facetools_windows.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr int kFewestFaces = -1;  // one step below none

// A typed number as a whole one in low..high.
int Held(double number, int low, int high) { return ToInteger<int>(std::clamp<double>(number, low, high)); }

// Stores what a person typed or picked, even when the bar stands there already.
void StoreTyped(BoxedBar& bar) {
  if (!bar.TakeTyped()) bar.onChange();
}

void StorePicked(ScrollBar& bar, double number) {
  const int before = bar.value();
  bar.Drag(number);
  if (bar.value() == before) bar.onChange();
}

}  // namespace

FreeFace::FreeFace(App& app) : ToolWindow(app, "freeface", "freeface") {
  BindEndCap();
  BindCreation();
  BindCounts();
  BindRouting();
  SetLayout(DeclareLayout());
}

void FreeFace::BindEndCap() {
  for (BoxedBar* bar : {&HScroll3, &HScroll11}) {
    bar->onChange = [this] { HScroll1.SetValue(HScroll3.value() * HScroll11.value() + 1); };
  }
}

void FreeFace::BindCreation() {
  struct Creation {
    PushButton& button;
    void (*append)(ModelStore&, const FreeFaceSettings&);
  };
  for (const Creation& c : std::initializer_list<Creation>{{Command1, AppendEndCap},
                                                           {Command4, AppendBottomCap},
                                                           {Command5, AppendTopCap},
                                                           {Command6, AppendStartSideCap},
                                                           {Command7, AppendEndSideCap},
                                                           {Command8, AppendSideCap},
                                                           {Command9, AppendSidePiece},
                                                           {Command11, AppendRadiating},
                                                           {Command14, AppendDisjoined},
                                                           {Command15, AppendStrip}}) {
    OnEdit(c.button, [this, c] {
      c.append(app_.model, ReadSettings());
      FinishAppending();
    });
  }
}

void FreeFace::BindCounts() {
  Text18.onKeyUp = [this] { app_.model.Part(CurrentPart(app_)).grid.reset(); };
  for (auto [button, step] : {std::pair{&Command2, 1}, {&Command3, -1}}) {
    OnEdit(*button, [this, step] { ChangeFaceCount(app_.model.Part(CurrentPart(app_)).maxfaces + step); });
  }
  OnEdit(Command12, [this] { ChangeFaceCount(Held(HScroll15.Number(), 0, kMaxFaces)); });
  Command13.onClick = [this](const Click&) { ImportProfiles(0, kMaxProfile); };
}

void FreeFace::BindRouting() {
  struct Corner {
    BoxedBar& bar;
    std::int32_t FaceRec::*point;
  };
  for (const Corner& c : std::initializer_list<Corner>{{HScroll16, &FaceRec::corner1pt},
                                                       {HScroll17, &FaceRec::corner2pt},
                                                       {HScroll18, &FaceRec::corner3pt}}) {
    OnEdit(
        c.bar, [this, c] { StoreCorner(c.bar, c.point); }, kRefreshOnly);
    c.bar.box.onKeyUp = [c] { StoreTyped(c.bar); };
    c.bar.box.onDoubleClick = [this, c] {
      const double picked = Val(app_.view->form36.Label16.caption());
      if (picked > 0) StorePicked(c.bar, picked);
    };
  }
  OnEdit(HScroll19, [this] { RoutedFace().onoff = Narrow<std::int16_t>(HScroll19.value()); });
  HScroll19.box.onKeyUp = [this] { StoreTyped(HScroll19); };
  HScroll12.onChange = [this] { HScroll12_Change(); };
  OnEdit(
      Command10, [this] { Command10_Click(); }, kRefreshOnly);
}

FreeFaceSettings FreeFace::ReadSettings() const {
  FreeFaceSettings s;
  s.part = CurrentPart(app_);
  s.fanStart = HScroll1.value();
  s.fanFaces = HScroll2.value();
  s.pointsPerLayer = HScroll11.value();
  s.capSide = HScroll4.value();
  s.capFirstLayer = HScroll6.value();
  s.capLastLayer = HScroll5.value();
  s.pieceSide = HScroll8.value();
  s.pieceFirstLayer = HScroll9.value();
  s.pieceLastLayer = HScroll7.value();
  s.pieceOffset = HScroll10.value();
  s.runStart = HScroll13.value();
  s.radiatingStart = Held(HScroll13.Number(), 1, kMaxPoints);
  s.runFaces = HScroll14.value();
  s.stripWidth = Held(Text22.Number(), 0, kMaxPoints);
  s.stripIsClosed = app_.geometry->revolveprof.Check4.value();
  ReadBody(s);
  return s;
}

// The body that a cap closes: what the generator laid; by hand the same, as long as the Part is what was laid
// last; else what Revolve Profile says. The last point of a laid row stands where the first one does, or will
// be joined to it.
void FreeFace::ReadBody(FreeFaceSettings& s) const {
  const auto& grid = ReadModel(app_).Part(CurrentPart(app_)).grid;
  if (pressedBody_ || grid) {
    s.body = pressedBody_ ? *pressedBody_ : *grid;
    s.capFaces = s.body.width - 2;
  } else {
    const int sections = app_.geometry->revolveprof.HScroll10.value();
    s.body = {sections + Held(Text18.Number(), -kMaxPoints, kMaxPoints),
              app_.geometry->revolveprof.HScroll22.value()};
    s.capFaces = sections - 1;
  }
}

void FreeFace::PressCap(Cap cap, const LaidGrid& body) {
  if (body.rows < 1) return;
  const std::array<PushButton*, 4> buttons = {&Command4, &Command5, &Command6, &Command7};
  pressedBody_ = body;
  buttons[static_cast<std::size_t>(cap)]->Press();
  pressedBody_.reset();
}

void FreeFace::SetRange(int faces, int pointsPerLayer) {
  HScroll2.SetValue(HScroll2.Clamped(faces));
  HScroll11.SetValue(HScroll11.Clamped(pointsPerLayer));
}

void FreeFace::MakeEndCap(int layer, std::optional<int> start) {
  HScroll3.SetValue(HScroll3.Clamped(layer));
  if (!start) return;
  HScroll1.SetValue(HScroll1.Clamped(*start));
  Command1.Press();
}

void FreeFace::FinishAppending() {
  PartHeader& part = app_.model.Part(CurrentPart(app_));
  const std::string counts =
      "faces " + std::to_string(part.maxfaces) + " points " + std::to_string(part.maxpoints);
  app_.view->form5.Label1.SetCaption(counts);
  app_.view->form51.Label3.SetCaption(counts);
  part.minfaces = 1;
  FollowFaces(app_);
}

void FreeFace::ChangeFaceCount(int count) {
  app_.model.Part(CurrentPart(app_)).maxfaces =
      Narrow<std::int16_t>(std::clamp(count, kFewestFaces, kMaxFaces));
  FollowFaces(app_);
}

void FreeFace::ImportProfiles(int first, int last) {
  Edit(Command13, [&] {
    ImportProfilePoints(app_.model, CurrentPart(app_), first, last);
    app_.model.Part(CurrentPart(app_)).grid.reset();
    FollowCounts(app_);
  });
}

FaceRec& FreeFace::RoutedFace() { return app_.model.Faces(CurrentPart(app_), HScroll12.value()); }

void FreeFace::StoreCorner(const ScrollBar& bar, std::int32_t FaceRec::*corner) {
  RoutedFace().*corner = bar.value();
  SyncFaceCorners(app_);
  ScrollBar& chosenPoint = app_.facetools->editbyface.VScroll1;  // the views draw it larger
  chosenPoint.SetValue(chosenPoint.Clamped(bar.value()));
}

void FreeFace::CountsChanged(Counts which) {
  if (which == Counts::Points) return;
  Text16.SetText(std::to_string(ReadModel(app_).Part(CurrentPart(app_)).maxfaces));
  HScroll12_Change();
}

void FreeFace::HScroll12_Change() {
  const FaceRec& face = ReadModel(app_).Faces(CurrentPart(app_), HScroll12.value());
  HScroll16.Show(face.corner1pt);
  HScroll17.Show(face.corner2pt);
  HScroll18.Show(face.corner3pt);
  HScroll19.Show(face.onoff);
}

void FreeFace::Command10_Click() {
  FaceRec& face = RoutedFace();
  face.corner1pt = Held(HScroll16.Number(), 1, kMaxPoints);
  face.corner2pt = Held(HScroll17.Number(), 1, kMaxPoints);
  face.corner3pt = Held(HScroll18.Number(), 1, kMaxPoints);
  face.onoff = Narrow<std::int16_t>(Held(HScroll19.Number(), 0, 1));
  PartHeader& part = app_.model.Part(CurrentPart(app_));
  part.maxfaces = std::max(part.maxfaces, Narrow<std::int16_t>(HScroll12.value()));
  FinishAppending();
  SyncFaceCorners(app_);
  HScroll12.SetValue(HScroll12.Clamped(HScroll12.value() + 1));
}

// One narrow column: the picture stays in sight while faces are made.
LayoutItem FreeFace::DeclareLayout() {
  return Column({
      Frame("Endcap",
            {BarRow(HScroll1), BarRow(HScroll2), BarRow(HScroll3), BarRow(HScroll11), Flow({&Command1}),
             Labelled("Extra pts per row", Text18), Flow({&Command4, &Command5})}),
      Frame("Side Cap",
            {BarRow(HScroll4), BarRow(HScroll5), BarRow(HScroll6), Flow({&Command8, &Command6, &Command7})}),
      Frame("Side Piece",
            {BarRow(HScroll8), BarRow(HScroll7), BarRow(HScroll9), BarRow(HScroll10), Flow({&Command9})}),
      Frame("Create Faces", {BarRow(HScroll13), BarRow(HScroll14), Flow({&Command11, &Command14}),
                             Labelled("Pts per row", Text22), Flow({&Command15})}),
      Frame("Total", {BarRow(HScroll15), Labelled("Faces", Text16),
                      Flow({&Command2, &Command3, &Command12, &Command13})}),
      Frame("Face Routing",
            {BarRow(HScroll12), BarRow(HScroll16), BarRow(HScroll17), BarRow(HScroll18), BarRow(HScroll19),
             Flow({&Command10})},
            "Create obj face by selection"),
  });
}

}  // namespace pelorium

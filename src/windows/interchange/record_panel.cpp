// Boxes of single records.
#include "windows/interchange/record_panel.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "core/record_entry.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form36_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {
constexpr int kDecimals = 2;
}

RecordPanel::RecordPanel(Window& owner, App& app) : owner_(owner), app_(app) {
  VScroll1.onChange = [this] { ShowPoint(); };
  VScroll2.onChange = [this] { ShowFace(); };
  for (TextBox* box : PointBoxes()) {
    box->onKeyUp = box->onDoubleClick = [this, box] { Edit(*box, &RecordPanel::StorePoint); };
  }
  for (TextBox* box : FaceBoxes()) box->onKeyUp = [this, box] { Edit(*box, &RecordPanel::StoreFace); };
  for (TextBox* corner : {&Text5, &Text6, &Text7}) {
    corner->onDoubleClick = [this, corner] {
      corner->SetText(app_.view->form36.Label16.caption());
      Edit(*corner, &RecordPanel::StoreFace);
    };
  }
  for (TextBox* box : {&Text9, &Text10})
    box->onKeyUp = [this, box] { Edit(*box, &RecordPanel::StoreCounts); };
  Command3.onClick = [this](const Click&) { Edit(Command3, &RecordPanel::StorePoint); };
  Command4.onClick = [this](const Click&) { Edit(Command4, &RecordPanel::StoreFace); };
  Command5.onClick = [this](const Click&) { Edit(Command5, &RecordPanel::StoreCounts); };
}

LayoutItem RecordPanel::Layout() {
  return Column({
      Frame("Vertex info", {BarRow(VScroll1, {&Label4}), Labelled("X", Text1), Labelled("Y", Text2),
                            Labelled("Z", Text3), Labelled("on/off", Text4), Flow({&Command3})}),
      Frame("Face Info", {BarRow(VScroll2, {&Label3}), Labelled("1", Text5), Labelled("2", Text6),
                          Labelled("3", Text7), Labelled("On/Off", Text8), Flow({&Command4})}),
      Frame("Counts", {Labelled("Max pts", Text9), Labelled("Max Faces", Text10), Flow({&Command5})}),
  });
}

void RecordPanel::Edit(const Control& control, void (RecordPanel::*change)()) {
  Trapped(app_.faults, control.FullName(), [&] {
    (this->*change)();
    SyncFaceCorners(app_);
  });
  RefreshViews(app_);
}

void RecordPanel::FollowCounts(Counts which) {
  if (which == Counts::Points) return;
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  const int points = std::max<int>(0, part.maxpoints), faces = std::max<int>(0, part.maxfaces);
  if (VScroll1.value() > points) VScroll1.SetValue(0);
  VScroll1.SetMax(points);
  Text9.SetText(std::to_string(points));
  if (VScroll2.value() > std::max(1, faces)) VScroll2.SetValue(1);
  VScroll2.SetMax(std::max(1, faces));
  Text10.SetText(std::to_string(faces));
  ShowRecords();
}

void RecordPanel::Restore() {
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  const int points = std::max<int>(0, part.maxpoints), faces = std::max<int>(0, part.maxfaces);
  VScroll1.ShowMax(points);
  VScroll2.ShowMax(std::max(1, faces));
  Text9.SetText(std::to_string(points));
  Text10.SetText(std::to_string(faces));
  ShowRecords();
}

void RecordPanel::ShowRecords() {
  ShowPoint();
  ShowFace();
}

void RecordPanel::ShowPoint() {
  const int number = std::min(VScroll1.value(), kMaxPoints);  // the bar is longer than the table at the start
  const PointRec& point = ReadModel(app_).Points(CurrentPart(app_), number);
  Label4.SetCaption(std::to_string(VScroll1.value()));
  Text1.SetText(ShortestForm(RoundTo(point.X, kDecimals)));
  Text2.SetText(ShortestForm(RoundTo(point.Y, kDecimals)));
  Text3.SetText(ShortestForm(RoundTo(point.Z, kDecimals)));
  Text4.SetText(std::to_string(point.onoff));
}

void RecordPanel::ShowFace() {
  const FaceRec& face = ReadModel(app_).Faces(CurrentPart(app_), VScroll2.value());
  Label3.SetCaption(std::to_string(VScroll2.value()));
  Text5.SetText(std::to_string(face.corner1pt));
  Text6.SetText(std::to_string(face.corner2pt));
  Text7.SetText(std::to_string(face.corner3pt));
  Text8.SetText(std::to_string(face.onoff));
}

void RecordPanel::StorePoint() {
  StorePointEntry(app_.model, CurrentPart(app_), VScroll1.value(),
                  {Text1.Number(), Text2.Number(), Text3.Number()}, Text4.Number());
}

void RecordPanel::StoreFace() {
  StoreFaceEntry(app_.model, CurrentPart(app_), VScroll2.value(),
                 {Text5.Number(), Text6.Number(), Text7.Number()}, Text8.Number());
}

// A number that is too large is replaced in its box when the typing is over.
void RecordPanel::StoreCounts() {
  StoreCountEntry(app_.model, CurrentPart(app_), Text9.Number(), Text10.Number());
  const PartHeader& part = ReadModel(app_).Part(CurrentPart(app_));
  if (Text9.Number() != part.maxpoints) Text9.ShowInstead(std::to_string(part.maxpoints));
  if (Text10.Number() != part.maxfaces) Text10.ShowInstead(std::to_string(part.maxfaces));
  VScroll1.SetMax(part.maxpoints);
  VScroll2.SetMax(std::max<int>(1, part.maxfaces));
}

}  // namespace pelorium

// Whole-Part commands.
#include "windows/frame/part_commands.h"

#include "core/copy_part.h"
#include "core/erase_part.h"
#include "core/part_operations.h"
#include "facetools/switch_faces.h"
#include "geometry/choose_points.h"
#include "geometry/disjoin.h"
#include "geometry/subdivide.h"
#include "windows/geometry/weld_seam.h"
#include "windows/interchange/interchange_windows.h"
#include "windows/interchange/shapes_parts_library.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/follow_sections.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

void FollowPasted(App& app) {
  FollowSections(app);
  FollowCounts(app);
}

void SwitchAllPoints(App& app, bool on) { MarkPoints(app.model, CurrentPart(app), 1, kMaxPoints, on); }

void SwitchAllFaces(App& app, bool on) { SwitchFaces(app.model, CurrentPart(app), 1, kMaxFaces, on); }

void SwitchFaceRange(App& app, bool on) {
  SwitchFaces(app.model, CurrentPart(app), FaceRangeStart(app), FaceRangeEnd(app), on);
}

// The library's scale goes to its smallest, and stays there; Combine itself scales nothing.
void PressCombine(App& app, bool erases) {
  Shapes& shapes = app.interchange->shapes;
  shapes.Check2.SetValue(erases);
  shapes.HScroll1.SetValue(1);
  shapes.HScroll2.SetValue(CurrentPart(app));
  shapes.Command9.Press();
}

}  // namespace

void CopyToBuffer(App& app) { CopyPart(app.model, CurrentPart(app), kBufferPart); }

void PasteBuffer(App& app) {
  CopyPart(app.model, kBufferPart, CurrentPart(app));
  FollowPasted(app);
}

void PasteBufferInto(App& app) {
  AppendPart(app.model, kBufferPart, CurrentPart(app));
  FollowPasted(app);
}

void CombineAll(App& app) { PressCombine(app, false); }
void CombineAllAndErase(App& app) { PressCombine(app, true); }

void EraseAll(App& app) {
  for (int part = 0; part < kParts; ++part) ErasePart(app.model, part);
  app.TessCount = 1;
  FollowCounts(app);
}

void EraseCurrentPart(App& app) {
  ErasePart(app.model, CurrentPart(app));
  FollowCounts(app);
}

void EraseOtherParts(App& app) {
  for (int part = 0; part < kParts; ++part) {
    if (part != CurrentPart(app)) ErasePart(app.model, part);
  }
}

void EraseAllFaces(App& app) { EraseFaces(app.model, CurrentPart(app)); }

void DeleteTurnedOff(App& app) {
  EraseFacesTurnedOff(app.model, CurrentPart(app));
  JoinClosePoints(app);
}

void SwitchAllPointsOn(App& app) { SwitchAllPoints(app, true); }
void SwitchAllPointsOff(App& app) { SwitchAllPoints(app, false); }

void InvertChosenPoints(App& app) {
  InvertPoints(app.model, CurrentPart(app), PointRangeStart(app), PointRangeEnd(app));
}

void SwitchAllFacesOn(App& app) { SwitchAllFaces(app, true); }
void SwitchAllFacesOff(App& app) { SwitchAllFaces(app, false); }

void InvertFaceRange(App& app) {
  InvertFaces(app.model, CurrentPart(app), FaceRangeStart(app), FaceRangeEnd(app));
}

void SwitchFaceRangeOn(App& app) { SwitchFaceRange(app, true); }
void SwitchFaceRangeOff(App& app) { SwitchFaceRange(app, false); }

void CenterPart(App& app) { MovePartTo(app.model, CurrentPart(app), Origin(app)); }

void Subdivide(App& app) {
  SubdivideFaces(app.model, CurrentPart(app));
  FollowCounts(app);
}

void Disjoin(App& app) {
  DisjoinFaces(app.model, CurrentPart(app));
  FollowCounts(app);
}

}  // namespace pelorium

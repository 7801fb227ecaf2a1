// Drags of the chosen points and of the origin.
#include "windows/view/view_drag.h"

#include <optional>

#include "base/numbers.h"
#include "core/chosen_points.h"
#include "geometry/edit_chosen_points.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/drag_factor.h"
#include "windows/shell/hooks.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

namespace {

constexpr double kUnitsPerUnit = 0.1;    // of a move, for each unit dragged
constexpr double kDegreesPerUnit = 0.1;  // of a turn

// The directions that the View Options hold are taken out.
DragStep Held(const App& app, DragStep step) {
  const MovedAxes enabled = EnabledMoves(app);
  if (!enabled.across) step.d1 = 0;
  if (!enabled.up) step.d2 = step.d3 = 0;
  return step;
}

// A single point takes its mirror image along.
void MoveMirrorImage(App& app) {
  if (!MirrorsMoves(app)) return;
  const ChosenPoints chosen = Chosen(app);
  const std::optional<int> moved = OnlyChosenPoint(app.model, chosen);
  if (!moved) return;
  const int partner =
      MirrorPartner(*moved, PointsPerLayer(app), 1, ReadModel(app).Part(chosen.part).maxpoints);
  if (partner == kNoPartner) return;
  PlaceMirrored(app.model.Points(chosen.part, partner), ReadModel(app).Points(chosen.part, *moved),
                FlipAxis(app), Origin(app));
}

void MovePoints(App& app, const DragStep& step, const DragAxes& axes) {
  const ChosenPoints chosen = Chosen(app);
  if (step.isRight) {
    MoveChosen(app.model, chosen, axes.out, kUnitsPerUnit * step.d2);
  } else {
    MoveChosen(app.model, chosen, axes.across, kUnitsPerUnit * step.d1);
    MoveChosen(app.model, chosen, axes.up, kUnitsPerUnit * step.d3);
  }
  MoveMirrorImage(app);
}

void RotatePoints(App& app, const DragStep& step, const DragAxes& axes) {
  const Turn byWidth = Turn::By(kDegreesPerUnit * step.d1), byHeight = Turn::By(kDegreesPerUnit * step.d3);
  if (step.isRight) {
    TurnChosen(app.model, Chosen(app), {{axes.across, axes.up, byWidth}}, Origin(app));
  } else {
    TurnChosen(app.model, Chosen(app), {{axes.across, axes.out, byWidth}, {axes.up, axes.out, byHeight}},
               Origin(app));
  }
}

void ScalePoints(App& app, const DragStep& step, const DragAxes& axes) {
  const ChosenPoints chosen = Chosen(app);
  const Vec3 pivot = Origin(app);
  ScaleChosen(app.model, chosen, axes.across, DragFactor(step.d1), pivot);
  ScaleChosen(app.model, chosen, axes.up, DragFactor(step.d3), pivot);
  ScaleChosen(app.model, chosen, axes.out, DragFactor(step.d2), pivot);
}

void MoveOrigin(App& app, const DragStep& step, const DragAxes& axes) {
  Vec3 origin = Origin(app);
  Coordinate(origin, axes.across) += kUnitsPerUnit * step.d1;
  Coordinate(origin, axes.up) += kUnitsPerUnit * step.d3;
  Coordinate(origin, axes.out) += kUnitsPerUnit * step.d2;
  SetOrigin(app, origin);
}

}  // namespace

DragAxes DragAxesOf(Projection projection) {
  switch (projection) {
    case Projection::Front:
      return {Axis::X, Axis::Z, Axis::Y};
    case Projection::Side:
      return {Axis::Z, Axis::Y, Axis::X};
    default:
      return {Axis::X, Axis::Y, Axis::Z};
  }
}

bool DragModel(App& app, const DragStep& step, const DragAxes& axes) {
  switch (ArmedTool(app)) {
    case Tool::Move:
      if (step.isShift) return false;
      MovePoints(app, Held(app, step), axes);
      break;
    case Tool::Rotate:
      RotatePoints(app, step, axes);
      break;
    case Tool::Scale:
      ScalePoints(app, step, axes);
      break;
    case Tool::MoveOrigin:
      MoveOrigin(app, Held(app, step), axes);
      RefreshViews(app);
      return true;
    default:
      return false;
  }
  SyncFaceCorners(app);
  RefreshViews(app);
  return true;
}

}  // namespace pelorium

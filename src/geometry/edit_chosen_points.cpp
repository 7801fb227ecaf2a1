// Edits of the chosen points.
#include "geometry/edit_chosen_points.h"

#include "base/fault.h"

namespace pelorium {

namespace {

void TurnPoint(PointRec& point, std::initializer_list<PlaneTurn> turns, const Vec3& pivot) {
  Vec3 relative{point.X - pivot.X, point.Y - pivot.Y, point.Z - pivot.Z};
  for (const PlaneTurn& turn : turns) {
    turn.turn.Apply(Coordinate(relative, turn.p), Coordinate(relative, turn.q));
  }
  for (const PlaneTurn& turn : turns) {
    for (const Axis axis : {turn.p, turn.q}) {
      Coordinate(point, axis) = Coordinate(relative, axis) + Coordinate(pivot, axis);
    }
  }
}

}  // namespace

void MoveChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, double by) {
  ForEachChosen(model, chosen, [=](int, PointRec& point) { Coordinate(point, axis) += by; });
}

void ScaleChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, double factor, const Vec3& pivot) {
  const double origin = Coordinate(pivot, axis);
  ForEachChosen(model, chosen, [=](int, PointRec& point) {
    double& coordinate = Coordinate(point, axis);
    coordinate = origin + (coordinate - origin) * factor;
  });
}

void MirrorChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, const Vec3& pivot) {
  const double origin = Coordinate(pivot, axis);
  ForEachChosen(model, chosen, [=](int, PointRec& point) {
    Coordinate(point, axis) = 2 * origin - Coordinate(point, axis);
  });
}

void EqualiseChosen(ModelStore& model, const ChosenPoints& chosen, Axis to, Axis from) {
  ForEachChosen(model, chosen,
                [=](int, PointRec& point) { Coordinate(point, to) = Coordinate(point, from); });
}

void TurnChosen(ModelStore& model, const ChosenPoints& chosen, std::initializer_list<PlaneTurn> turns,
                const Vec3& pivot) {
  ForEachChosen(model, chosen, [&](int, PointRec& point) { TurnPoint(point, turns, pivot); });
}

void TurnChosenProgressively(ModelStore& model, const ChosenPoints& chosen, const ProgressiveTurn& turn,
                             const Vec3& pivot) {
  if (turn.ringWidth < 1) throw Fault(FaultKind::DivisionByZero, "points of a layer");
  ForEachChosen(model, chosen, [&](int number, PointRec& point) {
    const int layer = (number - 1) / turn.ringWidth;
    if (layer < turn.firstLayer || layer > turn.lastLayer) return;
    const double degrees = turn.degrees * (layer - turn.firstLayer + 1);
    TurnPoint(point, {{turn.p, turn.q, Turn::By(degrees)}}, pivot);
  });
}

}  // namespace pelorium

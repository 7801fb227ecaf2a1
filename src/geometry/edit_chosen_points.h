// Moves, scales, turns and mirrors of the chosen points of a Part. The faces follow by SyncFaceCorners.
#pragma once

#include <initializer_list>

#include "core/axes.h"
#include "core/chosen_points.h"
#include "core/turn.h"

namespace pelorium {

void MoveChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, double by);

// coordinate = pivot + (coordinate - pivot) * factor. A factor of 1 may round the last digit.
void ScaleChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, double factor, const Vec3& pivot);

// coordinate = 2 * pivot - coordinate
void MirrorChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, const Vec3& pivot);

// to = from
void EqualiseChosen(ModelStore& model, const ChosenPoints& chosen, Axis to, Axis from);

// One turn in the plane of p and q.
struct PlaneTurn {
  Axis p, q;
  Turn turn;
};

// The turns one after the other, each on the result of the one before. The point is taken relative to the pivot
// once, before the first of them; coordinates that none of them turns stay untouched.
void TurnChosen(ModelStore& model, const ChosenPoints& chosen, std::initializer_list<PlaneTurn> turns,
                const Vec3& pivot);

// A turn whose angle grows from layer to layer: rings of `ringWidth` points (at least 1, else DivisionByZero)
// counted from 0; those outside firstLayer..lastLayer stay, the first one turns by `degrees`, the next by twice
// as much.
struct ProgressiveTurn {
  Axis p, q;
  double degrees = 0;
  int ringWidth = 1;
  int firstLayer = 0, lastLayer = 0;
};

void TurnChosenProgressively(ModelStore& model, const ChosenPoints& chosen, const ProgressiveTurn& turn,
                             const Vec3& pivot);

}  // namespace pelorium

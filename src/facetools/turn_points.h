// Turning the chosen points about the origin, as the tools of single faces do.
#pragma once

#include "core/axes.h"
#include "core/chosen_points.h"

namespace pelorium {

// A turn in the plane of two axes; p' = p cos - q sin, q' = q cos + p sin.
struct FaceTurn {
  Axis p = Axis::X, q = Axis::Y;
  double radians = 0;
};

// Each sum begins with the pivot, which decides the last digit of every place. The faces follow by
// SyncFaceCorners.
void TurnPoints(ModelStore& model, const ChosenPoints& chosen, const FaceTurn& turn, const Vec3& pivot);

}  // namespace pelorium

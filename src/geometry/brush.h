// A brush that pushes the points under it, most at its middle and not at all at its edge.
#pragma once

#include "core/model_store.h"

namespace pelorium {

struct BrushStroke {
  int part = 0;
  int lastPoint = 0;  // of the points 1..lastPoint those with PointMark 1 are pushed
  Vec3 at;            // the middle of the brush
  bool measuresX = true, measuresY = true, measuresZ = true;  // axes that the distance is taken over
  double radius = 0;                                          // units
  Vec3 push;                                                  // of a point in the middle
};

// A point at distance d moves by push * (1 - (d / radius)^2)^2. A radius of 0 or less pushes nothing. A point
// number past the table raises a Subscript fault.
void Brush(ModelStore& model, const BrushStroke& stroke);

}  // namespace pelorium

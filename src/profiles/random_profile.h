// A profile of random points.
#pragma once

#include "profiles/draw_point.h"
#include "profiles/edit_points.h"

namespace pelorium {

class RandomSeries;

// Points within `range` units of zero in the two coordinates of the plane; the third is the origin's. Draws
// two numbers a point, in the order X, Y, Z of the coordinates that it sets. The count becomes the last
// point.
void RandomProfile(ModelStore& model, int profile, LayerSpan points, ProfilePlane plane, const Vec3& origin,
                   double range, RandomSeries& random);

}  // namespace pelorium

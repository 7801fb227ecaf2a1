// Circles through the three corners of a triangle, as the tessellation keeps them beside its faces.
#pragma once

#include "core/model_store.h"

namespace pelorium {

struct Circumcircle {
  double x = 0, y = 0;      // centre, in the X-Y plane
  double reachSquared = 0;  // squared radius with the tolerance; below 0 when the circle takes no point
  double z = 0;             // mean Z of the corners
  double radius = 0;

  bool Holds(double pointX, double pointY) const {
    const double dx = pointX - x, dy = pointY - y;
    return dx * dx + dy * dy <= reachSquared;
  }
};

// Three corners on one line give a circle that takes no point. The same digits on every machine, whatever the
// order of other triangles.
Circumcircle CircleThrough(const Vec3& a, const Vec3& b, const Vec3& c);

}  // namespace pelorium

// Turning in a plane.
#pragma once

#include <cmath>

#include "base/numbers.h"

namespace pelorium {

// Sine and cosine of an angle, taken once for all the points that turn by it.
struct Turn {
  double sine = 0, cosine = 1;

  static Turn By(double degrees) {
    return {std::sin(degrees * kRadiansPerDegree), std::cos(degrees * kRadiansPerDegree)};
  }

  // p' = p cos + q sin, q' = q cos - p sin. The other sense is the turn by the negative angle, to the last
  // digit.
  void Apply(double& p, double& q) const {
    const double p0 = p;
    p = p0 * cosine + q * sine;
    q = q * cosine - p0 * sine;
  }
};

}  // namespace pelorium

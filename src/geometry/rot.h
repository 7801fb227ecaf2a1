// The turning step of the generators.
#pragma once

#include <cmath>

#include "base/numbers.h"

namespace pelorium {

// Turns the pair (a, b) by `degrees` about (ca, cb) and reflects it: at 0 degrees a stays and b flips about
// cb. The generators' sequences are built on the reflection, which cancels in pairs.
inline void Rot(double& a, double& b, double degrees, double ca, double cb) {
  const double sine = std::sin(degrees * kRadiansPerDegree), cosine = std::cos(degrees * kRadiansPerDegree);
  const double da = a - ca, db = b - cb;
  a = sine * db + cosine * da;
  b = sine * da - cosine * db;
  a += ca;
  b += cb;
}

}  // namespace pelorium

// The circle's centre is where two perpendicular bisectors meet; a level side has an upright one.
#include "geometry/circumcircle.h"

#include <cmath>

namespace pelorium {

namespace {

constexpr double kLevel = 1e-6;  // units of Y in which a side counts as level

// A point on the circle is inside: of points on one circle the last digits would decide by chance.
constexpr double kTolerance = 1 + 1e-9;

struct Bisector {
  double slope, x, y;  // through the middle of the side
  double At(double across) const { return slope * (across - x) + y; }
};

Bisector BisectorOf(const Vec3& from, const Vec3& to) {
  return {-(to.X - from.X) / (to.Y - from.Y), (from.X + to.X) / 2, (from.Y + to.Y) / 2};
}

// False when the bisectors do not meet.
bool PlaceCentre(Circumcircle& circle, const Vec3& a, const Vec3& b, const Vec3& c) {
  const bool isFirstLevel = std::abs(b.Y - a.Y) < kLevel, isSecondLevel = std::abs(c.Y - b.Y) < kLevel;
  if (isFirstLevel && isSecondLevel) return false;
  if (isFirstLevel) {
    circle.x = (b.X + a.X) / 2;
    circle.y = BisectorOf(b, c).At(circle.x);
    return true;
  }
  const Bisector first = BisectorOf(a, b);
  if (isSecondLevel) {
    circle.x = (c.X + b.X) / 2;
  } else {
    const Bisector second = BisectorOf(b, c);
    if (first.slope == second.slope) return false;
    circle.x =
        (first.slope * first.x - second.slope * second.x + second.y - first.y) / (first.slope - second.slope);
  }
  circle.y = first.At(circle.x);
  return true;
}

}  // namespace

Circumcircle CircleThrough(const Vec3& a, const Vec3& b, const Vec3& c) {
  Circumcircle circle;
  circle.z = (a.Z + b.Z + c.Z) / 3;
  if (!PlaceCentre(circle, a, b, c)) {
    circle.reachSquared = -1;
    return circle;
  }
  const double dx = b.X - circle.x, dy = b.Y - circle.y;
  const double squared = dx * dx + dy * dy;
  circle.reachSquared = squared * kTolerance;
  circle.radius = std::sqrt(squared);
  return circle;
}

}  // namespace pelorium

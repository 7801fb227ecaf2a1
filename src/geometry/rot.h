// The turning step of the generators.
#pragma once

#include "core/turn.h"

namespace pelorium {

// Turns the pair (a, b) about (ca, cb) and reflects it: at 0 degrees a stays and b flips about cb. The
// generators' sequences are built on the reflection, which cancels in pairs.
inline void Rot(double& a, double& b, const Turn& turn, double ca, double cb) {
  const double da = a - ca, db = b - cb;
  a = turn.sine * db + turn.cosine * da;
  b = turn.sine * da - turn.cosine * db;
  a += ca;
  b += cb;
}

// The three turns of one pose, in the order in which the generators make them.
struct Turns {
  Turn spin, turn, rotate;

  // Degrees in the planes X-Y, X-Z and Z-Y.
  static Turns By(double spinZ, double turnY, double rotateX) {
    return {Turn::By(spinZ), Turn::By(turnY), Turn::By(rotateX)};
  }
};

template <typename Point, typename Pivot>
void RotAll(Point& p, const Turns& turns, const Pivot& c) {
  Rot(p.X, p.Y, turns.spin, c.X, c.Y);
  Rot(p.X, p.Z, turns.turn, c.X, c.Z);
  Rot(p.Z, p.Y, turns.rotate, c.Z, c.Y);
}

}  // namespace pelorium

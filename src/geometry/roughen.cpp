// Random moves.
#include "geometry/roughen.h"

#include <cmath>

#include "base/random_series.h"
#include "geometry/finite.h"

namespace pelorium {

void Roughen(ModelStore& model, const ChosenPoints& range, const Vec3& amounts, RandomSeries& random) {
  for (int number = range.first; number <= range.last; number += range.step) {
    PointRec& point = model.Points(range.part, number);
    for (const Axis axis : {Axis::X, Axis::Y, Axis::Z}) {
      double& coordinate = Coordinate(point, axis);
      coordinate = Finite(coordinate + std::floor(random.Next() * Coordinate(amounts, axis)));
    }
  }
}

void ShakeRings(ModelStore& model, const ChosenPoints& chosen, const RingShake& shake, RandomSeries& random) {
  if (shake.ringWidth < 1) return;
  random.Seed(shake.seed);
  int ringsDrawn = 0;
  Vec3 move;
  ForEachChosen(model, chosen, [&](int number, PointRec& point) {
    for (const int ring = (number - 1) / shake.ringWidth; ringsDrawn <= ring; ++ringsDrawn) {
      for (double* part : {&move.X, &move.Y, &move.Z}) {
        *part = random.Next() * shake.amount - shake.amount / 2;
      }
    }
    for (const Axis axis : {Axis::X, Axis::Y, Axis::Z}) {
      double& coordinate = Coordinate(point, axis);
      const double by = Coordinate(move, axis);
      coordinate = Finite(shake.isBack ? coordinate - by : coordinate + by);
    }
  });
}

}  // namespace pelorium

// Turning the chosen points.
#include "facetools/turn_points.h"

#include <cmath>

namespace pelorium {

void TurnPoints(ModelStore& model, const ChosenPoints& chosen, const FaceTurn& turn, const Vec3& pivot) {
  const double sine = std::sin(turn.radians), cosine = std::cos(turn.radians);
  const double p = Coordinate(pivot, turn.p), q = Coordinate(pivot, turn.q);
  ForEachChosen(model, chosen, [&](int, PointRec& point) {
    const double tp = Coordinate(point, turn.p) - p, tq = Coordinate(point, turn.q) - q;
    Coordinate(point, turn.p) = p + tp * cosine - tq * sine;
    Coordinate(point, turn.q) = q + tq * cosine + tp * sine;
  });
}

}  // namespace pelorium

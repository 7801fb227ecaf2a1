// Flattening.
#include "geometry/flatten.h"

namespace pelorium {

void FlattenChosen(ModelStore& model, const ChosenPoints& chosen, Axis axis, FlatSide side, double plane) {
  ForEachChosen(model, chosen, [=](int, PointRec& point) {
    double& coordinate = Coordinate(point, axis);
    if (side == FlatSide::Below ? coordinate <= plane : coordinate >= plane) coordinate = plane;
  });
}

}  // namespace pelorium

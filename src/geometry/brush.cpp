// The brush.
#include "geometry/brush.h"

#include "core/chosen_points.h"
#include "geometry/finite.h"

namespace pelorium {

namespace {

double SquareDistance(const BrushStroke& stroke, const PointRec& point) {
  const double x = point.X - stroke.at.X, y = point.Y - stroke.at.Y, z = point.Z - stroke.at.Z;
  return (stroke.measuresX ? x * x : 0) + (stroke.measuresY ? y * y : 0) + (stroke.measuresZ ? z * z : 0);
}

}  // namespace

void Brush(ModelStore& model, const BrushStroke& stroke) {
  if (!(stroke.radius > 0)) return;
  const double squareRadius = stroke.radius * stroke.radius;
  ForEachChosen(model, {stroke.part, 1, stroke.lastPoint}, [&](int, PointRec& point) {
    const double share = SquareDistance(stroke, point) / squareRadius;
    if (!(share <= 1)) return;
    const double weight = (1 - share) * (1 - share);
    point.X = Finite(point.X + stroke.push.X * weight);
    point.Y = Finite(point.Y + stroke.push.Y * weight);
    point.Z = Finite(point.Z + stroke.push.Z * weight);
  });
}

}  // namespace pelorium

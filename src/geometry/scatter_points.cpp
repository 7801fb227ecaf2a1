// Points for a tessellation.
#include "geometry/scatter_points.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/random_series.h"
#include "core/part_operations.h"
#include "geometry/triangulate.h"

namespace pelorium {

namespace {

constexpr int kFewestPoints = 3;

}  // namespace

int ScatterCloud(ModelStore& model, const CloudSettings& settings, int count) {
  const int held = std::clamp(count, kFewestPoints, kMostTessellated);
  RandomSeries series;
  series.Seed(settings.seed);
  for (int i = 1; i <= held; ++i) {
    Vec3 place = settings.offset;
    place.X = std::floor(series.Next() * settings.width) + settings.offset.X;  // X is drawn first
    place.Y = std::floor(series.Next() * settings.height) + settings.offset.Y;
    LayPoint(model, settings.part, i, place);
  }
  return held;
}

int LayRing(ModelStore& model, const RingSettings& settings, int first) {
  int number = std::max(1, first);
  for (int k = 1; k <= settings.sides && number <= kMostTessellated; ++k, ++number) {
    const double angle = 360.0 / settings.sides * k * kRadiansPerDegree;
    LayPoint(model, settings.part, number,
             Vec3{settings.radiusX * std::cos(angle) + settings.centre.X,
                  settings.radiusY * std::sin(angle) + settings.centre.Y, settings.centre.Z});
  }
  return number;
}

int PointsOfProfiles(ModelStore& model, int part, int from, int to) {
  int number = 0;
  for (int profile = std::max(0, from); profile <= std::min(to, kMaxProfile); ++profile) {
    const int count = model.Profile(profile).count;
    for (int i = 0; count > 0 && i <= count; ++i)
      LayPoint(model, part, ++number, model.ProfilePts(i, profile));
  }
  return number;
}

void MarkOnlyEvery(ModelStore& model, int part, int last, int step) {
  for (int i = 1; i <= last; ++i) model.PointMark(part, i) = (i - 1) % step == 0 ? 1 : 0;
}

}  // namespace pelorium

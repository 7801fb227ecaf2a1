// The angular cutoff.
#include "geometry/angular_cutoff.h"

#include <algorithm>
#include <cmath>

namespace pelorium {

namespace {

constexpr int kLastColumn = 200;
constexpr double kNarrowestBand = 0.5;

}  // namespace

void CutAngularly(ModelStore& model, const ChosenPoints& chosen, const Vec3& origin, double share) {
  ForEachChosen(model, chosen, [&](int, PointRec& point) {
    const double away = std::abs(point.Y - origin.Y);
    for (int t = 0; t <= kLastColumn; ++t) {
      const double column = origin.X + t, band = share * t;
      if (std::abs(point.X - column) > std::max(band, kNarrowestBand) || !(away <= band)) continue;
      point.X = column;
      return;
    }
  });
}

}  // namespace pelorium

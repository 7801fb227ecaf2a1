// Random profiles.
#include "profiles/random_profile.h"

#include <algorithm>

#include "base/random_series.h"

namespace pelorium {

void RandomProfile(ModelStore& model, int profile, LayerSpan points, ProfilePlane plane, const Vec3& origin,
                   double range, RandomSeries& random) {
  const int last = std::min(points.last, kMaxLayer);
  if (points.first > last) return;
  for (int i = std::max(0, points.first); i <= last; ++i) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    point.X = plane == ProfilePlane::ZY ? origin.X : random.Next() * range;
    point.Y = plane == ProfilePlane::XZ ? origin.Y : random.Next() * range;
    point.Z = plane == ProfilePlane::XY ? origin.Z : random.Next() * range;
  }
  model.Profile(profile).count = static_cast<std::int16_t>(std::max(0, last));
}

}  // namespace pelorium

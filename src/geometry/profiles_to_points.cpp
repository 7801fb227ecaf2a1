// Parts from stacks of profiles.
#include "geometry/profiles_to_points.h"

namespace pelorium {

void LayProfiles(ModelStore& model, int part, const ProfileStack& stack, int after) {
  int n = after;
  for (int profile = stack.firstProfile; profile <= stack.lastProfile; ++profile) {
    for (int i = stack.firstPoint; i <= stack.lastPoint && n < kMaxPoints; ++i) {
      const ProfilePointRec& from = model.ProfilePts(i, profile);
      PointRec& point = model.Points(part, ++n);
      CopyPosition(point, from);
      point.onoff = model.PointMark(part, n) = 1;
    }
  }
  model.Part(part).maxpoints = static_cast<std::int16_t>(n);
  model.Part(part).minpoints = 1;
}

}  // namespace pelorium

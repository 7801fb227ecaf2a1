// Profiles of a Part's points.
#include "core/profile_from_points.h"

#include <algorithm>

namespace pelorium {

int ProfileFromPoints(ModelStore& model, int profile, const PointWalk& walk) {
  int taken = 0;
  long long number = walk.first;
  for (; taken < walk.points && taken <= kMaxLayer; ++taken, number += walk.stride) {
    if (number < 1 || number > model.Part(walk.part).maxpoints) break;
    CopyPosition(model.ProfilePts(taken, profile), model.Points(walk.part, static_cast<int>(number)));
  }
  ProfileHeader& header = model.Profile(profile);
  header.first = 0;
  header.count = static_cast<std::int16_t>(std::min(taken, kMaxLayer));
  if (taken > 0 && taken <= kMaxLayer) {
    CopyPosition(model.ProfilePts(taken, profile), model.ProfilePts(taken - 1, profile));
  }
  return taken;
}

}  // namespace pelorium

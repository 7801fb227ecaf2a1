// Rings and sides as profiles.
#include "profiles/fetch_profiles.h"

#include <algorithm>

#include "core/profile_from_points.h"

namespace pelorium {

namespace {

void GetSide(ModelStore& model, const RingGrid& rings, int side, int profile) {
  const int wanted = std::min(model.Part(rings.part).count + 1, kMaxLayer + 1);
  const int taken = ProfileFromPoints(model, profile, {rings.part, side, rings.rowLength, wanted});
  if (taken == 0) return;
  const ProfilePointRec& last = model.ProfilePts(taken - 1, profile);
  for (int point = taken; point <= std::min(wanted, kMaxLayer); ++point) {
    CopyPosition(model.ProfilePts(point, profile), last);
  }
  model.Profile(profile).count = static_cast<std::int16_t>(std::min(wanted, kMaxLayer));
}

}  // namespace

void GetLayer(ModelStore& model, const RingGrid& rings, int layer, int profile) {
  ProfileFromPoints(model, profile, {rings.part, layer * rings.rowLength + 1, 1, rings.pointsPerRing});
}

void GetLayers(ModelStore& model, const RingGrid& rings, int firstLayer, int lastLayer, int firstProfile) {
  for (int layer = firstLayer, q = firstProfile; layer <= lastLayer && q <= kMaxProfile; ++layer, ++q) {
    GetLayer(model, rings, layer, q);
  }
}

void GetSides(ModelStore& model, const RingGrid& rings, int firstSide, int lastSide, int firstProfile) {
  for (int side = firstSide, q = firstProfile; side <= lastSide && q <= kMaxProfile; ++side, ++q) {
    GetSide(model, rings, side, q);
  }
}

}  // namespace pelorium

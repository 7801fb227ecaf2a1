// Edits of a block of profile points.
#include "profiles/edit_profile_range.h"

#include <cmath>

#include "base/numbers.h"

namespace pelorium {

namespace {

// A profile point and a pivot name their coordinates alike.
template <typename Place>
auto& At(Place& place, BlockAxis axis) {
  return axis == BlockAxis::X ? place.X : axis == BlockAxis::Y ? place.Y : place.Z;
}

ProfileBlock EveryPoint(ProfileBlock block) {
  block.pointStep = 1;
  return block;
}

template <typename Act>
void ForEachPoint(const ProfileBlock& block, Act act) {
  for (int profile = block.firstProfile; profile <= block.lastProfile; ++profile) {
    for (int i = block.firstPoint; i <= block.lastPoint; i += block.pointStep) act(i, profile);
  }
}

}  // namespace

void MoveBlock(ModelStore& model, const ProfileBlock& block, const BlockAxes& axes, double by) {
  ForEachPoint(block, [&](int i, int profile) {
    for (const BlockAxis axis : axes) At(model.ProfilePts(i, profile), axis) += by;
  });
}

void ScaleBlock(ModelStore& model, const ProfileBlock& block, const BlockAxes& axes, double factor,
                const Vec3& pivot) {
  ForEachPoint(block, [&](int i, int profile) {
    for (const BlockAxis axis : axes) {
      double& coordinate = At(model.ProfilePts(i, profile), axis);
      coordinate = At(pivot, axis) + (coordinate - At(pivot, axis)) * factor;
    }
  });
}

void TurnBlock(ModelStore& model, const ProfileBlock& block, BlockAxis p, BlockAxis q, double degrees,
               const Vec3& pivot) {
  const double a = degrees * kRadiansPerDegree;
  ForEachPoint(block, [&](int i, int profile) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    const double tp = At(point, p) - At(pivot, p), tq = At(point, q) - At(pivot, q);
    At(point, p) = std::cos(a) * tp + std::sin(a) * tq + At(pivot, p);
    At(point, q) = std::cos(a) * tq - std::sin(a) * tp + At(pivot, q);
  });
}

void CopyToBlock(ModelStore& model, const ProfileBlock& block, int source) {
  ForEachPoint(EveryPoint(block), [&](int i, int profile) {
    CopyPosition(model.ProfilePts(i, profile), model.ProfilePts(i, source));
  });
}

void SpaceBlock(ModelStore& model, const ProfileBlock& block, BlockAxis axis, double spacing) {
  ForEachPoint(EveryPoint(block), [&](int i, int profile) {
    At(model.ProfilePts(i, profile), axis) += (profile - block.firstProfile) * spacing;
  });
}

}  // namespace pelorium

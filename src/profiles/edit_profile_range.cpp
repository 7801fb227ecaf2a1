// Edits of a block of profile points.
#include "profiles/edit_profile_range.h"

#include "core/turn.h"

namespace pelorium {

namespace {

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
    for (const Axis axis : axes) Coordinate(model.ProfilePts(i, profile), axis) += by;
  });
}

void ScaleBlock(ModelStore& model, const ProfileBlock& block, const BlockAxes& axes, double factor,
                const Vec3& pivot) {
  ForEachPoint(block, [&](int i, int profile) {
    for (const Axis axis : axes) {
      double& coordinate = Coordinate(model.ProfilePts(i, profile), axis);
      coordinate = Coordinate(pivot, axis) + (coordinate - Coordinate(pivot, axis)) * factor;
    }
  });
}

void TurnBlock(ModelStore& model, const ProfileBlock& block, Axis p, Axis q, double degrees,
               const Vec3& pivot) {
  const Turn turn = Turn::By(degrees);
  ForEachPoint(block, [&](int i, int profile) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    double tp = Coordinate(point, p) - Coordinate(pivot, p), tq = Coordinate(point, q) - Coordinate(pivot, q);
    turn.Apply(tp, tq);
    Coordinate(point, p) = tp + Coordinate(pivot, p);
    Coordinate(point, q) = tq + Coordinate(pivot, q);
  });
}

void CopyToBlock(ModelStore& model, const ProfileBlock& block, int source) {
  ForEachPoint(EveryPoint(block), [&](int i, int profile) {
    CopyPosition(model.ProfilePts(i, profile), model.ProfilePts(i, source));
  });
}

void SpaceBlock(ModelStore& model, const ProfileBlock& block, Axis axis, double spacing) {
  ForEachPoint(EveryPoint(block), [&](int i, int profile) {
    Coordinate(model.ProfilePts(i, profile), axis) += (profile - block.firstProfile) * spacing;
  });
}

}  // namespace pelorium

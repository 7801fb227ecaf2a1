// Edits of a block of profile points: the same points of profiles that stand side by side.
#pragma once

#include <vector>

#include "core/axes.h"
#include "core/model_store.h"

namespace pelorium {

// Profiles and points count from 0 to 36; an upper number below the lower one chooses nothing. `pointStep`
// is at least 1.
struct ProfileBlock {
  int firstProfile = 0, lastProfile = 0;
  int firstPoint = 0, lastPoint = 0;
  int pointStep = 1;
};

using BlockAxes = std::vector<Axis>;

// Adds to the given coordinates of every point.
void MoveBlock(ModelStore& model, const ProfileBlock& block, const BlockAxes& axes, double by);

// Multiplies the given coordinates, as seen from the pivot.
void ScaleBlock(ModelStore& model, const ProfileBlock& block, const BlockAxes& axes, double factor,
                const Vec3& pivot = {});

// Turns every point about the pivot in the plane of two axes p, q: p := p cos + q sin, q := q cos - p sin.
void TurnBlock(ModelStore& model, const ProfileBlock& block, Axis p, Axis q, double degrees,
               const Vec3& pivot);

// X, Y, Z of the points become those of profile `source`. All points from first to last, whatever the step.
void CopyToBlock(ModelStore& model, const ProfileBlock& block, int source);

// Moves each profile by `spacing` more than the one before; the first stays. All points, whatever the step.
void SpaceBlock(ModelStore& model, const ProfileBlock& block, Axis axis, double spacing);

}  // namespace pelorium

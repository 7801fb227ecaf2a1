// The profiles taken as a grid: each is a row, and between neighbouring points of neighbouring rows lies a
// cell.
#pragma once

#include <algorithm>
#include <array>

#include "core/model_store.h"

namespace pelorium {

// Both ends are included.
struct ProfileGrid {
  int firstProfile = 0, lastProfile = kMaxProfile;
  int firstPoint = 0, lastPoint = kMaxLayer;
};

// The ranges of other tables reach further than the profiles do.
inline ProfileGrid HeldInTable(const ProfileGrid& grid) {
  return {std::max(0, grid.firstProfile), std::min(grid.lastProfile, kMaxProfile),
          std::max(0, grid.firstPoint), std::min(grid.lastPoint, kMaxLayer)};
}

using CellTriangle = std::array<const ProfilePointRec*, 3>;

// The cell from (profile, point) to (profile + 1, point + 1) as two triangles.
inline std::array<CellTriangle, 2> TrianglesOfCell(const ModelStore& model, int profile, int point) {
  const auto at = [&](int profileStep, int pointStep) {
    return &model.ProfilePts(point + pointStep, profile + profileStep);
  };
  return {{{at(0, 0), at(0, 1), at(1, 0)}, {at(0, 1), at(1, 1), at(1, 0)}}};
}

}  // namespace pelorium

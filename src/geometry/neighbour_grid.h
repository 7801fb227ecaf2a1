// Who is near: places in the cells of a grid, for edits that would measure hundreds of millions of distances.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "core/model_store.h"

namespace pelorium {

// Items by place, in buckets of cells no smaller than the reach on each axis. A bucket may hold several cells
// and may be visited more than once, so a finder measures for itself.
class NeighbourGrid {
 public:
  NeighbourGrid(const Vec3& reach, int items)
      : cellX_(CellSize(reach.X)),
        cellY_(CellSize(reach.Y)),
        cellZ_(CellSize(reach.Z)),
        firsts_(kBuckets, kNone) {
    nexts_.reserve(static_cast<std::size_t>(items));
  }

  // Items are numbered from 0 in the order in which they come.
  void Add(const Vec3& place) {
    int& first = firsts_[Bucket(Cell(place.X, cellX_), Cell(place.Y, cellY_), Cell(place.Z, cellZ_))];
    nexts_.push_back(first);
    first = static_cast<int>(nexts_.size()) - 1;
  }

  // Visits at least all items within reach, in each bucket the latest first and until `visit` returns false.
  template <typename Visit>
  void VisitNear(const Vec3& place, Visit visit) const {
    const std::int64_t x = Cell(place.X, cellX_), y = Cell(place.Y, cellY_), z = Cell(place.Z, cellZ_);
    for (std::int64_t i = x - 1; i <= x + 1; ++i) {
      for (std::int64_t j = y - 1; j <= y + 1; ++j) {
        for (std::int64_t k = z - 1; k <= z + 1; ++k) VisitBucket(Bucket(i, j, k), visit);
      }
    }
  }

 private:
  static constexpr int kNone = -1;
  static constexpr std::size_t kBuckets = 1 << 16;
  static constexpr double kMargin = 1.001;       // covers the rounding of distances and cells
  static constexpr double kSmallestCell = 1e-6;  // units
  static constexpr double kFarthestCell = 1e12;  // places beyond share the outermost cells

  static double CellSize(double reach) { return std::max(reach * kMargin, kSmallestCell); }

  static std::int64_t Cell(double coordinate, double size) {
    const double cell = std::floor(coordinate / size);
    if (!(cell > -kFarthestCell)) return static_cast<std::int64_t>(-kFarthestCell);
    return static_cast<std::int64_t>(std::min(cell, kFarthestCell));
  }

  static std::size_t Bucket(std::int64_t x, std::int64_t y, std::int64_t z) {
    const std::uint64_t mixed = static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15U ^
                                static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FU ^
                                static_cast<std::uint64_t>(z) * 0x165667B19E3779F9U;
    return static_cast<std::size_t>(mixed >> 48);
  }

  template <typename Visit>
  void VisitBucket(std::size_t bucket, Visit& visit) const {
    for (int item = firsts_[bucket]; item != kNone; item = nexts_[static_cast<std::size_t>(item)]) {
      if (!visit(item)) return;
    }
  }

  double cellX_, cellY_, cellZ_;
  std::vector<int> firsts_, nexts_;
};

}  // namespace pelorium

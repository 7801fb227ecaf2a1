// Circles by place and size.
#include "geometry/circle_grid.h"

#include <algorithm>
#include <cmath>

namespace pelorium {

CircleGrid::CircleGrid(double left, double bottom, double side, int most)
    : left_(left),
      bottom_(bottom),
      side_(side),
      entries_(static_cast<std::size_t>(most)),
      firsts_(std::size_t{1} << kBucketBits, kNone) {}

// What is no number or has no end counts as large: it is asked at each point.
int CircleGrid::LevelOf(double radius) const {
  const double halvings = side_ / (radius * kMargin);
  if (!(halvings >= 1) || !std::isfinite(side_)) return kLarge;
  if (!(halvings < 1 << (kLevels - 1))) return kLevels - 1;
  return std::ilogb(halvings);
}

// Places outside the square count to the cells at its edge, which keeps neighbours neighbours.
int CircleGrid::CellOf(double offset, int level) const {
  const double cells = 1 << level;
  const double cell = offset / side_ * cells;
  if (!(cell > 0)) return 0;
  return static_cast<int>(std::min(cell, cells - 1));
}

std::size_t CircleGrid::BucketOf(int level, int column, int row) {
  const std::uint32_t mixed = static_cast<std::uint32_t>(column) * 0x9E3779B1U ^
                              static_cast<std::uint32_t>(row) * 0x85EBCA6BU ^
                              static_cast<std::uint32_t>(level) * 0xC2B2AE35U;
  return mixed >> (32 - kBucketBits);
}

void CircleGrid::Add(int number, const Circumcircle& circle) {
  const int level = LevelOf(circle.radius);
  int& first =
      level == kLarge
          ? firstLarge_
          : firsts_[BucketOf(level, CellOf(circle.x - left_, level), CellOf(circle.y - bottom_, level))];
  entries_[static_cast<std::size_t>(number)] = {circle.x, circle.y, circle.reachSquared, first, level};
  first = number;
  ++counts_[static_cast<std::size_t>(level)];
}

}  // namespace pelorium

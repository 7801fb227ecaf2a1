// Circles by place and size, so that those around a point are found without a walk over all of them.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "geometry/circumcircle.h"

namespace pelorium {

// A pile of grids, each half as fine as the next. A circle lies in the cell of its centre, in the finest grid
// whose cells are no smaller than its radius: a point that it holds is in that cell or a neighbour of it.
class CircleGrid {
 public:
  // For points in the square of `side` units whose lower left corner is given, and circles numbered from 0 to
  // below `most`.
  CircleGrid(double left, double bottom, double side, int most);

  void Add(int number, const Circumcircle& circle);

  // Calls takes(number) for each circle that holds the point, in no order, and takes it out when the answer
  // is true.
  template <typename Takes>
  void TakeOut(double x, double y, Takes takes) {
    TakeOutOf(firstLarge_, x, y, takes);
    for (int level = 0; level < kLevels; ++level) {
      if (counts_[static_cast<std::size_t>(level)] > 0) TakeOutOfLevel(level, x, y, takes);
    }
  }

 private:
  static constexpr int kNone = -1;
  static constexpr int kLevels = 16;
  static constexpr int kLarge = kLevels;  // the level of circles larger than the square
  static constexpr int kBucketBits = 14;
  static constexpr double kMargin = 1.001;  // covers the tolerance of circles and the rounding of cells

  struct Entry {
    double x, y, reachSquared;
    int next, level;
  };

  int LevelOf(double radius) const;
  int CellOf(double offset, int level) const;
  static std::size_t BucketOf(int level, int column, int row);

  template <typename Takes>
  void TakeOutOfLevel(int level, double x, double y, Takes& takes) {
    const int last = (1 << level) - 1;
    const int column = CellOf(x - left_, level), row = CellOf(y - bottom_, level);
    for (int i = std::max(0, column - 1); i <= std::min(last, column + 1); ++i) {
      for (int j = std::max(0, row - 1); j <= std::min(last, row + 1); ++j) {
        TakeOutOf(firsts_[BucketOf(level, i, j)], x, y, takes);
      }
    }
  }

  // A bucket may hold several cells: each circle is asked for itself.
  template <typename Takes>
  void TakeOutOf(int& first, double x, double y, Takes& takes) {
    for (int* link = &first; *link != kNone;) {
      const int number = *link;
      Entry& entry = entries_[static_cast<std::size_t>(number)];
      const double dx = x - entry.x, dy = y - entry.y;
      if (dx * dx + dy * dy <= entry.reachSquared && takes(number)) {
        --counts_[static_cast<std::size_t>(entry.level)];
        *link = entry.next;
      } else {
        link = &entry.next;
      }
    }
  }

  double left_, bottom_, side_;
  std::vector<Entry> entries_;
  std::vector<int> firsts_;  // of the buckets
  int firstLarge_ = kNone;
  std::array<int, kLevels + 1> counts_{};
};

}  // namespace pelorium

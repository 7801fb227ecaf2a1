// Glue tabs of a pattern, and the room they need.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "interchange/flat_pattern.h"

namespace pelorium {

// Convex, either way round.
using PatternShape = std::vector<PatternPlace>;

// Shapes that take room on the paper.
class TakenRoom {
 public:
  // `cell` is about the size of the shapes, in millimetres.
  explicit TakenRoom(double cell) : cell_(cell) {}

  void Take(const PatternShape& shape);
  // True when none of those covers part of it; touching is no covering.
  bool IsFree(const PatternShape& shape) const;

 private:
  struct Cells {
    long left, right, bottom, top;
  };
  Cells CellsOf(const PatternShape& shape) const;
  static bool AreMany(const Cells& cells);

  double cell_;
  std::vector<PatternShape> shapes_;
  std::unordered_map<long, std::vector<std::size_t>> byCell_;
  std::vector<std::size_t> large_;  // over more cells than are worth keeping
};

// A tab on the right of the edge from..to: its outline without the edge itself, with ends of 45 degrees.
// Where the edge is too short for `width` it comes to a point.
PatternShape TabOn(const PatternPlace& from, const PatternPlace& to, double width);

}  // namespace pelorium

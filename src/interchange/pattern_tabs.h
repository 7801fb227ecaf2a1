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
  // Millimetres: `cell` is about the size of the shapes; what lies less than `touch` over another only
  // touches it.
  TakenRoom(double cell, double touch) : cell_(cell), touch_(touch) {}

  void Take(const PatternShape& shape);
  // True when none of those covers part of it.
  bool IsFree(const PatternShape& shape) const;

 private:
  struct Cells {
    long left, right, bottom, top;
  };
  Cells CellsOf(const PatternShape& shape) const;
  static bool AreMany(const Cells& cells);

  bool Overlap(const PatternShape& a, const PatternShape& b) const;

  double cell_, touch_;
  std::vector<PatternShape> shapes_;
  std::unordered_map<long, std::vector<std::size_t>> byCell_;
  std::vector<std::size_t> large_;  // over more cells than are worth keeping
};

// A tab on the right of the edge from..to: its outline without the edge itself, with ends of 45 degrees.
// Where the edge is too short for `width` it comes to a point.
PatternShape TabOn(const PatternPlace& from, const PatternPlace& to, double width);

}  // namespace pelorium

// Edges are kept in cells by their middles; an edge looks into the cells that its tolerance reaches.
#include "interchange/edge_matches.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace pelorium {

namespace {

constexpr double kCellTolerances = 4;  // side of a cell: most edges then look into two or three
constexpr double kFarthestCell = 1e15;

using Cell = std::array<std::int64_t, 3>;

std::int64_t CellNumber(double at, double side) {
  const double cell = std::floor(at / side);
  if (!(cell > -kFarthestCell)) return static_cast<std::int64_t>(-kFarthestCell);  // a NaN too
  return static_cast<std::int64_t>(std::min(cell, kFarthestCell));
}

struct CellHash {
  std::size_t operator()(const Cell& cell) const {
    std::uint64_t hash = 0;
    for (const std::int64_t number : cell) {
      hash = (hash ^ static_cast<std::uint64_t>(number)) * 0x9E3779B97F4A7C15U;
      hash ^= hash >> 29;
    }
    return hash;
  }
};

using Cells = std::unordered_map<Cell, std::vector<int>, CellHash>;

Vec3 MiddleOf(const PlacedEdge& e) {
  return {(e.from.X + e.to.X) / 2, (e.from.Y + e.to.Y) / 2, (e.from.Z + e.to.Z) / 2};
}

Cell CellAt(const Vec3& place, double side, double shift) {
  return {CellNumber(place.X + shift, side), CellNumber(place.Y + shift, side),
          CellNumber(place.Z + shift, side)};
}

// The first edge in reach that is still alone.
int FindMatch(const std::vector<PlacedEdge>& edges, int edge, const Cells& cells,
              const std::vector<int>& matches, double tolerance) {
  const double side = kCellTolerances * tolerance;
  const PlacedEdge& e = edges[static_cast<std::size_t>(edge)];
  const Cell low = CellAt(MiddleOf(e), side, -tolerance), high = CellAt(MiddleOf(e), side, tolerance);
  int best = kNoMatch;
  for (std::int64_t x = low[0]; x <= high[0]; ++x) {
    for (std::int64_t y = low[1]; y <= high[1]; ++y) {
      for (std::int64_t z = low[2]; z <= high[2]; ++z) {
        const auto found = cells.find({x, y, z});
        if (found == cells.end()) continue;
        for (const int other : found->second) {
          const PlacedEdge& f = edges[static_cast<std::size_t>(other)];
          if (best != kNoMatch && other > best) break;
          if (matches[static_cast<std::size_t>(other)] != kNoMatch || f.owner == e.owner) continue;
          if (AreOneEdge(e, f, tolerance)) best = other;
        }
      }
    }
  }
  return best;
}

}  // namespace

bool AreOnePlace(const Vec3& p, const Vec3& q, double tolerance) {
  const double dx = p.X - q.X, dy = p.Y - q.Y, dz = p.Z - q.Z;
  return dx * dx + dy * dy + dz * dz <= tolerance * tolerance;
}

bool AreOneEdge(const PlacedEdge& e, const PlacedEdge& f, double tolerance) {
  return (AreOnePlace(e.from, f.from, tolerance) && AreOnePlace(e.to, f.to, tolerance)) ||
         (AreOnePlace(e.from, f.to, tolerance) && AreOnePlace(e.to, f.from, tolerance));
}

std::vector<int> MatchEdges(const std::vector<PlacedEdge>& edges, double tolerance) {
  std::vector<int> matches(edges.size(), kNoMatch);
  Cells cells;
  cells.reserve(edges.size());
  for (int edge = 0; edge < static_cast<int>(edges.size()); ++edge) {
    const int other = FindMatch(edges, edge, cells, matches, tolerance);
    if (other != kNoMatch) {
      matches[static_cast<std::size_t>(edge)] = other;
      matches[static_cast<std::size_t>(other)] = edge;
    }
    cells[CellAt(MiddleOf(edges[static_cast<std::size_t>(edge)]), kCellTolerances * tolerance, 0)].push_back(
        edge);
  }
  return matches;
}

}  // namespace pelorium

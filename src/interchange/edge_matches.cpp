// Edges are kept in cells by their middles; an edge looks into the cells that its tolerance reaches.
#include "interchange/edge_matches.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace pelorium {

namespace {

constexpr double kCellTolerances = 4;  // side of a cell: most edges then look into two or three
constexpr double kFarthestCell = 1e15, kSmallestCell = 1e-9;

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

bool AreOneEdge(const PlacedEdge& e, const PlacedEdge& f) {
  const double tolerance = std::min(e.tolerance, f.tolerance);
  return (AreOnePlace(e.from, f.from, tolerance) && AreOnePlace(e.to, f.to, tolerance)) ||
         (AreOnePlace(e.from, f.to, tolerance) && AreOnePlace(e.to, f.from, tolerance));
}

// Edges that are still alone, in the cells of their middles.
class LoneEdges {
 public:
  LoneEdges(const std::vector<PlacedEdge>& edges, double widest)
      : edges_(edges), side_(std::max(kCellTolerances * widest, kSmallestCell)) {
    cells_.reserve(edges.size());
  }

  void Add(int edge) { cells_[CellAt(edge, 0)].push_back(edge); }

  // The first one on the same two places, which is alone no longer.
  int TakeMatch(int edge) {
    const PlacedEdge& e = Edge(edge);
    const Cell low = CellAt(edge, -e.tolerance), high = CellAt(edge, e.tolerance);
    std::vector<int>* home = nullptr;
    int best = kNoMatch;
    for (std::int64_t x = low[0]; x <= high[0]; ++x) {
      for (std::int64_t y = low[1]; y <= high[1]; ++y) {
        for (std::int64_t z = low[2]; z <= high[2]; ++z) {
          const auto found = cells_.find({x, y, z});
          if (found == cells_.end()) continue;
          const int match = FirstMatch(found->second, e);
          if (match == kNoMatch || (best != kNoMatch && match > best)) continue;
          best = match;
          home = &found->second;
        }
      }
    }
    if (home != nullptr) home->erase(std::find(home->begin(), home->end(), best));
    return best;
  }

 private:
  const PlacedEdge& Edge(int number) const { return edges_[static_cast<std::size_t>(number)]; }

  Cell CellAt(int edge, double shift) const {
    const Vec3 middle = MiddleOf(Edge(edge));
    return {CellNumber(middle.X + shift, side_), CellNumber(middle.Y + shift, side_),
            CellNumber(middle.Z + shift, side_)};
  }

  int FirstMatch(const std::vector<int>& cell, const PlacedEdge& e) const {
    for (const int other : cell) {
      if (Edge(other).owner != e.owner && AreOneEdge(e, Edge(other))) return other;
    }
    return kNoMatch;
  }

  const std::vector<PlacedEdge>& edges_;
  double side_;
  Cells cells_;
};

}  // namespace

bool AreOnePlace(const Vec3& p, const Vec3& q, double tolerance) {
  const double dx = p.X - q.X, dy = p.Y - q.Y, dz = p.Z - q.Z;
  return dx * dx + dy * dy + dz * dz <= tolerance * tolerance;
}

void MatchEdges(const std::vector<PlacedEdge>& edges, EdgeMatches& matches) {
  matches.resize(edges.size(), kNoMatch);
  double widest = 0;
  for (const PlacedEdge& edge : edges) widest = std::max(widest, edge.tolerance);
  LoneEdges alone(edges, widest);
  for (int edge = 0; edge < static_cast<int>(edges.size()); ++edge) {
    if (matches[static_cast<std::size_t>(edge)] != kNoMatch) continue;
    const int other = alone.TakeMatch(edge);
    if (other == kNoMatch) {
      alone.Add(edge);
      continue;
    }
    matches[static_cast<std::size_t>(edge)] = other;
    matches[static_cast<std::size_t>(other)] = edge;
  }
}

}  // namespace pelorium

// Finding edges that lie on the same two places.
#pragma once

#include <vector>

#include "core/model_store.h"

namespace pelorium {

struct PlacedEdge {
  Vec3 from, to;
  int owner = 0;         // two edges of one owner never match
  double tolerance = 0;  // how far its ends may lie from another's
};

inline constexpr int kNoMatch = -1;

// For each edge the number of the one it is matched with, or kNoMatch.
using EdgeMatches = std::vector<int>;

// Matches those that are not matched yet, each once, the first ones first. Ends may be exchanged; each end of
// one lies within the smaller tolerance of the two of an end of the other.
void MatchEdges(const std::vector<PlacedEdge>& edges, EdgeMatches& matches);

bool AreOnePlace(const Vec3& p, const Vec3& q, double tolerance);

}  // namespace pelorium

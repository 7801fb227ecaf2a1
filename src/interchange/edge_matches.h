// Finding edges that lie on the same two places.
#pragma once

#include <array>
#include <vector>

#include "core/model_store.h"

namespace pelorium {

struct PlacedEdge {
  Vec3 from, to;
  int owner = 0;  // two edges of one owner never match
};

inline constexpr int kNoMatch = -1;

// For each edge the number of the one it is matched with, or kNoMatch. Ends may be exchanged; each end of one
// lies within `tolerance` of an end of the other. An edge is matched once, the first ones first.
std::vector<int> MatchEdges(const std::vector<PlacedEdge>& edges, double tolerance);

bool AreOnePlace(const Vec3& p, const Vec3& q, double tolerance);
bool AreOneEdge(const PlacedEdge& e, const PlacedEdge& f, double tolerance);

}  // namespace pelorium

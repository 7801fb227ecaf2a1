// The edges of a hole.
#include "geometry/hole_edges.h"

#include <algorithm>
#include <cstdint>

namespace pelorium {

HoleEdges::HoleEdges(int most) : firsts_(std::size_t{1} << kBucketBits, kNone) {
  edges_.reserve(static_cast<std::size_t>(most));
  nexts_.reserve(static_cast<std::size_t>(most));
}

std::size_t HoleEdges::BucketOf(int from, int to) {
  const auto [low, high] = std::minmax(from, to);
  const std::uint32_t mixed =
      static_cast<std::uint32_t>(low) * 0x9E3779B1U ^ static_cast<std::uint32_t>(high) * 0x85EBCA6BU;
  return mixed >> (32 - kBucketBits);
}

void HoleEdges::Add(int from, int to) {
  int& first = firsts_[BucketOf(from, to)];
  int* oldest = nullptr;
  for (int* link = &first; *link != kNone; link = &nexts_[static_cast<std::size_t>(*link)]) {
    const HoleEdge& edge = edges_[static_cast<std::size_t>(*link)];
    if (edge.from == to && edge.to == from) oldest = link;
  }
  if (oldest != nullptr) {
    const auto cancelled = static_cast<std::size_t>(*oldest);
    *oldest = nexts_[cancelled];
    edges_[cancelled] = {};
    --count_;
    return;
  }
  edges_.push_back({from, to});
  nexts_.push_back(first);
  first = static_cast<int>(edges_.size()) - 1;
  ++count_;
}

void HoleEdges::Clear() {
  for (const HoleEdge& edge : edges_) {
    if (edge.from != 0) firsts_[BucketOf(edge.from, edge.to)] = kNone;
  }
  edges_.clear();
  nexts_.clear();
  count_ = 0;
}

}  // namespace pelorium

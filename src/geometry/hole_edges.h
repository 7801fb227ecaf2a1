// The edges of triangles that are taken away, of which those between two of them cancel.
#pragma once

#include <vector>

namespace pelorium {

struct HoleEdge {
  int from = 0, to = 0;  // point numbers; 0 when it was cancelled
};

// What is left, in the order of adding, is the border of the hole. Equals comparing each edge with each later
// one.
class HoleEdges {
 public:
  explicit HoleEdges(int most);

  // An edge that runs against one that is there cancels with the oldest such one.
  void Add(int from, int to);
  void Clear();

  // Of those that are left.
  int count() const { return count_; }
  // Those that are left, and cancelled ones between them.
  const std::vector<HoleEdge>& edges() const { return edges_; }

 private:
  static constexpr int kNone = -1;
  static constexpr int kBucketBits = 15;

  static std::size_t BucketOf(int from, int to);

  std::vector<HoleEdge> edges_;
  std::vector<int> nexts_;   // of each edge: the next older one of its bucket
  std::vector<int> firsts_;  // of the buckets, by the two numbers in either order
  int count_ = 0;
};

}  // namespace pelorium

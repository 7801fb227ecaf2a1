// The nearest point, by a tree whose levels halve the points by X, Y and Z in turn.
#include "geometry/copy_nearest.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "core/axes.h"

namespace pelorium {

namespace {

constexpr Axis Next(Axis axis) { return axis == Axis::X ? Axis::Y : axis == Axis::Y ? Axis::Z : Axis::X; }

double SquareDistance(const Vec3& a, const Vec3& b) {
  const double x = a.X - b.X, y = a.Y - b.Y, z = a.Z - b.Z;
  return x * x + y * y + z * z;
}

bool IsFinite(const Vec3& place) {
  return place.X - place.X + (place.Y - place.Y) + (place.Z - place.Z) == 0;
}

class NearestTree {
 public:
  explicit NearestTree(Range<const PointRec> points) {
    int number = 0;
    for (const PointRec& point : points) {
      nodes_.push_back({{point.X, point.Y, point.Z}, ++number});
      if (!IsFinite(nodes_.back().place)) nodes_.pop_back();  // nothing is near to it
    }
    Sort(0, nodes_.size(), Axis::X);
  }

  const Vec3* Find(const Vec3& place) const {
    Best best{std::numeric_limits<double>::infinity(), nullptr};
    if (IsFinite(place)) Search(0, nodes_.size(), Axis::X, place, best);
    return best.node == nullptr ? nullptr : &best.node->place;
  }

 private:
  struct Node {
    Vec3 place;
    int number;
  };
  struct Best {
    double square;
    const Node* node;
  };

  void Sort(std::size_t first, std::size_t last, Axis axis) {
    if (last - first < 2) return;
    const std::size_t middle = first + (last - first) / 2;
    const auto at = [this](std::size_t i) { return nodes_.begin() + static_cast<std::ptrdiff_t>(i); };
    std::nth_element(at(first), at(middle), at(last), [axis](const Node& a, const Node& b) {
      return Coordinate(a.place, axis) < Coordinate(b.place, axis);
    });
    Sort(first, middle, Next(axis));
    Sort(middle + 1, last, Next(axis));
  }

  void Search(std::size_t first, std::size_t last, Axis axis, const Vec3& place, Best& best) const {
    if (first >= last) return;
    const std::size_t middle = first + (last - first) / 2;
    const Node& node = nodes_[middle];
    const double square = SquareDistance(place, node.place);
    if (square < best.square ||
        (best.node != nullptr && square == best.square && node.number < best.node->number))
      best = {square, &node};
    const double across = Coordinate(place, axis) - Coordinate(node.place, axis);
    const bool isBefore = across < 0;
    const auto search = [&](bool before) {
      before ? Search(first, middle, Next(axis), place, best)
             : Search(middle + 1, last, Next(axis), place, best);
    };
    search(isBefore);
    if (across * across <= best.square) search(!isBefore);  // as near counts: its number may be lower
  }

  std::vector<Node> nodes_;
};

}  // namespace

void CopyNearest(ModelStore& model, const ChosenPoints& chosen, int from) {
  const NearestTree tree(PointRange(model, from, 1, model.Part(from).maxpoints));
  ForEachChosen(model, chosen, [&](int, PointRec& point) {
    if (const Vec3* place = tree.Find({point.X, point.Y, point.Z})) CopyPosition(point, *place);
  });
}

}  // namespace pelorium

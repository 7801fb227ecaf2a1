// The tessellation. A plain list would test each triangle's circle against each point; here a grid finds the
// circles that hold a point, and the removals are then replayed in the order of the list.
#include "geometry/triangulate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

#include "base/numbers.h"
#include "geometry/circle_grid.h"
#include "geometry/hole_edges.h"

namespace pelorium {

namespace {

constexpr int kEnclosingDecimals = 6;

struct Extent {
  Vec3 low, high;
  double Side() const { return std::max(high.X - low.X, high.Y - low.Y); }
};

Extent ExtentOf(const std::vector<Vec3>& places, int points) {
  Extent extent{places[1], places[1]};
  for (int i = 2; i <= points; ++i) {
    const Vec3& p = places[static_cast<std::size_t>(i)];
    extent.low = {std::min(extent.low.X, p.X), std::min(extent.low.Y, p.Y), std::min(extent.low.Z, p.Z)};
    extent.high = {std::max(extent.high.X, p.X), std::max(extent.high.Y, p.Y), std::max(extent.high.Z, p.Z)};
  }
  return extent;
}

Vec3 Rounded(double x, double y, double z) {
  return {RoundTo(x, kEnclosingDecimals), RoundTo(y, kEnclosingDecimals), RoundTo(z, kEnclosingDecimals)};
}

std::array<Vec3, 3> EnclosingTriangle(const Extent& extent) {
  const double side = extent.Side();
  const double x = (extent.low.X + extent.high.X) * 0.5, y = (extent.low.Y + extent.high.Y) * 0.5;
  const double z = (extent.low.Z + extent.high.Z) * 0.5;
  return {Rounded(x - 2 * side, y - side, z - side), Rounded(x, y + 2 * side, z - side),
          Rounded(x + 2 * side, y - side, z - side)};
}

// Numbered from 1, with room for the enclosing corners behind them.
std::vector<Vec3> PlacesOf(const ModelStore& model, int part, int points) {
  std::vector<Vec3> places(1);
  places.reserve(static_cast<std::size_t>(points) + 4);
  for (const PointRec& point : PointRange(model, part, 1, points))
    places.push_back({point.X, point.Y, point.Z});
  return places;
}

class Tessellation {
 public:
  // `places` from number 1, the enclosing corners last.
  Tessellation(const TessellationSettings& settings, const std::vector<Vec3>& places, const Extent& extent);

  // False when its triangles do not fit; nothing more may be inserted then.
  bool Insert(int point);

  // Those with a corner above `last` go.
  void DropAbove(int last);

  struct Triangle {
    int a, b, c;
    int slot;  // in the list
  };
  int count() const { return static_cast<int>(list_.size()); }
  const Triangle& operator[](int slot) const { return triangles_[Index(list_[Index(slot)])]; }

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

  void Append(int a, int b, int c);
  bool Takes(int triangle, const Vec3& point) const;
  bool Fits();
  void RemoveHits();
  void AddEdges(const Triangle& triangle);
  void RemoveAt(int slot);

  const TessellationSettings& settings_;
  const std::vector<Vec3>& places_;
  CircleGrid grid_;
  HoleEdges hole_;
  // Triangles keep their numbers while they move within the list.
  std::vector<Triangle> triangles_;
  struct Height {
    double z, radius;
  };
  std::vector<Height> heights_;
  std::vector<int> free_, list_, hits_, hitSlots_;
  std::vector<char> isHit_;
};

Tessellation::Tessellation(const TessellationSettings& settings, const std::vector<Vec3>& places,
                           const Extent& extent)
    : settings_(settings),
      places_(places),
      grid_(extent.low.X, extent.low.Y, extent.Side(), kMaxFaces),
      hole_(3 * kMaxFaces),
      triangles_(kMaxFaces),
      heights_(kMaxFaces),
      free_(kMaxFaces),
      isHit_(kMaxFaces) {
  std::iota(free_.rbegin(), free_.rend(), 0);
  for (std::vector<int>* numbers : {&list_, &hits_, &hitSlots_}) numbers->reserve(kMaxFaces);
  const int last = static_cast<int>(places.size()) - 1;
  Append(last - 2, last - 1, last);
}

void Tessellation::Append(int a, int b, int c) {
  const int triangle = free_.back();
  free_.pop_back();
  triangles_[Index(triangle)] = {a, b, c, count()};
  list_.push_back(triangle);
  const Circumcircle circle = CircleThrough(places_[Index(a)], places_[Index(b)], places_[Index(c)]);
  heights_[Index(triangle)] = {circle.z, circle.radius};
  grid_.Add(triangle, circle);
}

// Of a point inside the triangle's circle.
bool Tessellation::Takes(int triangle, const Vec3& point) const {
  const Height& height = heights_[Index(triangle)];
  switch (settings_.rule) {
    case ElevationRule::None:
      return true;
    case ElevationRule::Range:
      return settings_.lowest <= point.Z && point.Z <= settings_.highest;
    case ElevationRule::Radius:
      return std::abs(point.Z - height.z) <= height.radius;
    case ElevationRule::Distance:
      return std::abs(point.Z - height.z) <= settings_.distance;
  }
  return false;
}

bool Tessellation::Insert(int point) {
  const Vec3& place = places_[Index(point)];
  hits_.clear();
  grid_.TakeOut(place.X, place.Y, [&](int triangle) {
    if (!Takes(triangle, place)) return false;
    hits_.push_back(triangle);
    return true;
  });
  if (!Fits()) return false;
  RemoveHits();
  for (const HoleEdge& edge : hole_.edges()) {
    if (edge.from != 0) Append(edge.from, edge.to, point);
  }
  return true;
}

// The border of the hole has the same length in whatever order its triangles come.
bool Tessellation::Fits() {
  const int removed = static_cast<int>(hits_.size());
  if (count() + 2 * removed <= kMaxFaces) return true;
  hole_.Clear();
  for (const int triangle : hits_) AddEdges(triangles_[Index(triangle)]);
  return count() - removed + hole_.count() <= kMaxFaces;
}

// As a walk along the list meets them: the last triangle moves into the place of a hit one, and is a hit
// itself or not.
void Tessellation::RemoveHits() {
  hole_.Clear();
  hitSlots_.clear();
  for (const int triangle : hits_) {
    isHit_[Index(triangle)] = 1;
    hitSlots_.push_back(triangles_[Index(triangle)].slot);
  }
  std::sort(hitSlots_.begin(), hitSlots_.end());
  for (const int slot : hitSlots_) {
    while (slot < count() && isHit_[Index(list_[Index(slot)])] != 0) {
      AddEdges((*this)[slot]);
      isHit_[Index(list_[Index(slot)])] = 0;
      RemoveAt(slot);
    }
  }
}

void Tessellation::AddEdges(const Triangle& triangle) {
  hole_.Add(triangle.a, triangle.b);
  hole_.Add(triangle.b, triangle.c);
  hole_.Add(triangle.c, triangle.a);
}

void Tessellation::RemoveAt(int slot) {
  free_.push_back(list_[Index(slot)]);
  list_[Index(slot)] = list_.back();
  triangles_[Index(list_.back())].slot = slot;
  list_.pop_back();
}

void Tessellation::DropAbove(int last) {
  for (int slot = 0; slot < count();) {
    const Triangle& triangle = (*this)[slot];
    if (std::max({triangle.a, triangle.b, triangle.c}) > last) {
      RemoveAt(slot);
    } else {
      ++slot;
    }
  }
}

void StoreFaces(ModelStore& model, int part, const Tessellation& made) {
  for (int slot = 0; slot < made.count(); ++slot) {
    FaceRec& face = model.Faces(part, slot + 1);
    face.corner1pt = made[slot].a;
    face.corner2pt = made[slot].b;
    face.corner3pt = made[slot].c;
  }
}

}  // namespace

int Triangulate(ModelStore& model, const TessellationSettings& settings, int points) {
  if (points < 1) return 0;
  const int part = settings.part, last = std::min(points, kMostTessellated);
  std::vector<Vec3> places = PlacesOf(model, part, last);
  const Extent extent = ExtentOf(places, last);
  for (const Vec3& corner : EnclosingTriangle(extent)) {
    CopyPosition(model.Points(part, static_cast<int>(places.size())), corner);
    places.push_back(corner);
  }
  Tessellation tessellation(settings, places, extent);
  for (int i = 1; i <= last; ++i) {
    if (model.PointMark(part, i) == 1 && !tessellation.Insert(i)) break;
  }
  tessellation.DropAbove(last);
  StoreFaces(model, part, tessellation);
  return tessellation.count();
}

}  // namespace pelorium

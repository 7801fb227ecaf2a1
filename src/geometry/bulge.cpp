// The bulge. The walk over all profile points for each point of the Part measures 30 million distances; a
// grid of cells as wide as the reach says which of them are near, and the lowest of those that reach is the
// first.
#include "geometry/bulge.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "geometry/finite.h"
#include "geometry/neighbour_grid.h"

namespace pelorium {

namespace {

constexpr int kNone = -1;

// The largest square whose root is no more than `length`, so that squares compare as their roots do.
double LargestSquare(double length) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  if (!(length >= 0)) return -1;
  double square = length * length;
  while (std::sqrt(square) > length) square = std::nextafter(square, 0.0);
  while (square < kInfinity && std::sqrt(std::nextafter(square, kInfinity)) <= length)
    square = std::nextafter(square, kInfinity);
  return square;
}

class Reach {
 public:
  explicit Reach(const BulgeSettings& settings)
      : isBox_(settings.box.has_value()),
        sides_(settings.box.value_or(Vec3{settings.radius, settings.radius, settings.radius})),
        square_(LargestSquare(settings.radius)) {}

  const Vec3& sides() const { return sides_; }

  bool Holds(const Vec3& from, const Vec3& to) const {
    const double x = from.X - to.X, y = from.Y - to.Y, z = from.Z - to.Z;
    if (!isBox_) return x * x + y * y + z * z <= square_;
    return std::abs(x) <= sides_.X && std::abs(y) <= sides_.Y && std::abs(z) <= sides_.Z;
  }

 private:
  bool isBox_;
  Vec3 sides_;
  double square_;
};

std::vector<Vec3> ProfilePoints(const ModelStore& model, int firstProfile, int lastProfile) {
  std::vector<Vec3> places;
  for (int profile = firstProfile; profile <= lastProfile; ++profile) {
    for (int layer = 0; layer <= model.Profile(profile).count - 2; ++layer) {
      const ProfilePointRec& point = model.ProfilePts(layer, profile);
      places.push_back({point.X, point.Y, point.Z});
    }
  }
  return places;
}

double Moved(const BulgeSettings& settings, double coordinate, double pulling) {
  switch (settings.effect) {
    case BulgeEffect::Add:
      return coordinate + settings.amount;
    case BulgeEffect::Multiply:
      return coordinate * settings.amount;
    case BulgeEffect::Power:
      return coordinate == 0 ? 0 : std::copysign(std::pow(std::abs(coordinate), settings.amount), coordinate);
    case BulgeEffect::Snap:
      return pulling;
  }
  return coordinate;
}

void MovePoint(const BulgeSettings& settings, PointRec& point, const Vec3& pulling) {
  if (settings.alongX) point.X = Finite(Moved(settings, point.X, pulling.X));
  if (settings.alongY) point.Y = Finite(Moved(settings, point.Y, pulling.Y));
  if (settings.alongZ) point.Z = Finite(Moved(settings, point.Z, pulling.Z));
}

}  // namespace

void Bulge(ModelStore& model, const BulgeSettings& settings) {
  // Turned round, so that the grid tells the first of them first and its buckets can be left early.
  std::vector<Vec3> places = ProfilePoints(model, settings.firstProfile, settings.lastProfile);
  std::reverse(places.begin(), places.end());
  const Reach reach(settings);
  NeighbourGrid grid(reach.sides(), static_cast<int>(places.size()));
  for (const Vec3& place : places) grid.Add(place);
  const bool wantsFirst = settings.effect == BulgeEffect::Snap;  // the others do the same whoever reaches
  ForEachChosen(model, settings.chosen, [&](int, PointRec& point) {
    const Vec3 at{point.X, point.Y, point.Z};
    int found = kNone;
    grid.VisitNear(at, [&](int item) {
      if (item <= found || (found != kNone && !wantsFirst)) return false;
      if (!reach.Holds(at, places[static_cast<std::size_t>(item)])) return true;
      found = item;
      return false;
    });
    if (found != kNone) MovePoint(settings, point, places[static_cast<std::size_t>(found)]);
  });
}

}  // namespace pelorium

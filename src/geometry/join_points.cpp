// The join. A walk over all pairs would measure 500 million distances for a full Part. Two facts make it
// short: a point once taken, or one that has taken its surroundings, has no other point within the tolerance
// any more that is not on its own place, so each point moves at most once and only those not taken need to
// look around; and a grid of cells no smaller than the tolerance says who is near.
#include "geometry/join_points.h"

#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "geometry/neighbour_grid.h"

namespace pelorium {

namespace {

constexpr int kProgressSteps = 100;

double Distance(const Vec3& a, const Vec3& b) {
  const double x = a.X - b.X, y = a.Y - b.Y, z = a.Z - b.Z;
  return std::sqrt(x * x + y * y + z * z);
}

// Places that can be taken, each at most once.
class Cloud {
 public:
  Cloud(std::vector<Vec3> places, double tolerance)
      : tolerance_(tolerance),
        places_(std::move(places)),
        isTaken_(places_.size(), false),
        grid_({tolerance, tolerance, tolerance}, static_cast<int>(places_.size())) {
    for (const Vec3& place : places_) grid_.Add(place);
  }

  // Moves all that lie within the tolerance onto `place`.
  void GatherAt(const Vec3 place) {
    grid_.VisitNear(place, [&](int item) {
      const auto i = static_cast<std::size_t>(item);
      if (isTaken_[i] || !(Distance(place, places_[i]) <= tolerance_)) return true;
      isTaken_[i] = true;
      if (places_[i] != place) ++moved_;
      places_[i] = place;
      return true;
    });
  }

  bool IsTaken(std::size_t item) const { return isTaken_[item]; }
  const std::vector<Vec3>& places() const { return places_; }
  int moved() const { return moved_; }  // those that were not on that place already

 private:
  double tolerance_;
  std::vector<Vec3> places_;
  std::vector<bool> isTaken_;
  NeighbourGrid grid_;
  int moved_ = 0;
};

std::vector<Vec3> PlacesOf(Range<const PointRec> points) {
  std::vector<Vec3> places;
  for (const PointRec& point : points) places.push_back({point.X, point.Y, point.Z});
  return places;
}

// A face's own copies of its corners.
using Copy = std::array<double FaceRec::*, 3>;
constexpr std::array<Copy, 3> kCopies = {{{&FaceRec::c1X, &FaceRec::c1Y, &FaceRec::c1Z},
                                          {&FaceRec::c2X, &FaceRec::c2Y, &FaceRec::c2Z},
                                          {&FaceRec::c3X, &FaceRec::c3Y, &FaceRec::c3Z}}};

void JoinCorners(Range<FaceRec> faces, const std::vector<Vec3>& gatherings, double tolerance) {
  std::vector<Vec3> corners;
  for (const FaceRec& face : faces) {
    for (const Copy& copy : kCopies) corners.push_back({face.*copy[0], face.*copy[1], face.*copy[2]});
  }
  Cloud cloud(std::move(corners), tolerance);
  for (const Vec3& place : gatherings) cloud.GatherAt(place);
  auto moved = cloud.places().begin();
  for (FaceRec& face : faces) {
    for (const Copy& copy : kCopies) {
      face.*copy[0] = moved->X;
      face.*copy[1] = moved->Y;
      face.*copy[2] = moved->Z;
      ++moved;
    }
  }
}

void StorePlaces(ModelStore& model, int part, const std::vector<Vec3>& places) {
  int number = 0;
  for (const Vec3& place : places) {
    PointRec& point = model.Points(part, ++number);
    CopyPosition(point, place);
  }
}

}  // namespace

int JoinPoints(ModelStore& model, const JoinSettings& settings, const std::function<void(int)>& progress) {
  const int part = settings.part, last = model.Part(part).maxpoints;
  const int step = last / kProgressSteps + 1;
  Cloud cloud(PlacesOf(PointRange(model, part, 1, last)), settings.tolerance);
  std::vector<Vec3> gatherings;
  for (int point = 1; point <= last; ++point) {
    if (progress && (point % step == 0 || point == last)) progress(point);
    const auto item = static_cast<std::size_t>(point) - 1;
    if (model.PointMark(part, point) != 1 || cloud.IsTaken(item)) continue;
    gatherings.push_back(cloud.places()[item]);
    cloud.GatherAt(gatherings.back());
  }
  StorePlaces(model, part, cloud.places());
  if (settings.moveFaceCorners) {
    JoinCorners(FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces), gatherings,
                settings.tolerance);
  }
  return cloud.moved();
}

}  // namespace pelorium

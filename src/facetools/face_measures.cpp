// Measures of a face.
#include "facetools/face_measures.h"

#include <cmath>
#include <numbers>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kShownDecimals = 2;

Vec3 PlaceOf(const PointRec& point) { return {point.X, point.Y, point.Z}; }

double Distance(const Vec3& p, const Vec3& q) {
  const double dx = p.X - q.X, dy = p.Y - q.Y, dz = p.Z - q.Z;
  return std::sqrt(dx * dx + dy * dy + dz * dz);
}

}  // namespace

FaceCorners CornersOf(const ModelStore& model, int part, int face) {
  const FaceRec& f = model.Faces(part, face);
  return {PlaceOf(model.Points(part, f.corner1pt)), PlaceOf(model.Points(part, f.corner2pt)),
          PlaceOf(model.Points(part, f.corner3pt))};
}

FaceCorners CopiedCorners(const FaceRec& face) {
  return {{face.c1X, face.c1Y, face.c1Z}, {face.c2X, face.c2Y, face.c2Z}, {face.c3X, face.c3Y, face.c3Z}};
}

Vec3 CentreOf(const FaceCorners& corners) {
  const auto& [a, b, c] = corners;
  return {(a.X + b.X + c.X) / 3, (a.Y + b.Y + c.Y) / 3, (a.Z + b.Z + c.Z) / 3};
}

EdgeLengths LengthsOf(const FaceCorners& corners) {
  return {RoundTo(Distance(corners.a, corners.b), kShownDecimals),
          RoundTo(Distance(corners.b, corners.c), kShownDecimals),
          RoundTo(Distance(corners.c, corners.a), kShownDecimals)};
}

double Perimeter(const EdgeLengths& lengths) {
  return RoundTo(lengths.ab + lengths.bc + lengths.ca, kShownDecimals);
}

double Area(const EdgeLengths& lengths) {
  const double s = (lengths.ab + lengths.bc + lengths.ca) / 2;
  const double squared = s * (s - lengths.ab) * (s - lengths.bc) * (s - lengths.ca);
  return squared > 0 ? RoundTo(std::sqrt(squared), kShownDecimals) : 0;
}

double SlopeAngle(double rise, double run) {
  if (run != 0) return std::atan(rise / run);
  return rise == 0 ? 0 : std::copysign(std::numbers::pi / 2, rise);
}

std::array<std::vector<int>, 3> MatchingPoints(const ModelStore& model, int part, int face,
                                               std::size_t limit) {
  const FaceRec& f = model.Faces(part, face);
  const std::array<int, 3> numbers = {f.corner1pt, f.corner2pt, f.corner3pt};
  const FaceCorners corners = CornersOf(model, part, face);
  const std::array<Vec3, 3> places = {corners.a, corners.b, corners.c};
  std::array<std::vector<int>, 3> matching;
  int number = 0;
  for (const PointRec& point : PointRange(model, part, 1, model.Part(part).maxpoints)) {
    ++number;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (point.X != places[i].X || point.Y != places[i].Y || point.Z != places[i].Z) continue;
      if (number != numbers[i] && matching[i].size() < limit) matching[i].push_back(number);
    }
  }
  return matching;
}

}  // namespace pelorium

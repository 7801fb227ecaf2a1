// The steps of unfolding.
#include "facetools/unfold.h"

#include <cmath>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kSweepSteps = 2000;
constexpr double kSweepDegrees = 0.1;
constexpr int kAngleDecimals = 2;
constexpr double kTerm = 0.0001;  // keeps an upright edge from dividing by zero

void Place(PointRec& point, const FlatPlace& base, const FlatPlace& at, double elevation) {
  point.X = base.x + at.x;
  point.Y = base.y + at.y;
  point.Z = elevation;
}

}  // namespace

FlatTriangle SweepTriangle(const EdgeLengths& lengths) {
  FlatTriangle flat;
  flat.b = {lengths.ab, 0};
  double degrees = 0;  // summed up step by step, with what that rounds
  for (int step = 0; step < kSweepSteps; ++step) {
    const double angle = degrees * kRadiansPerDegree;
    flat.c = {lengths.bc * std::cos(angle), lengths.bc * std::sin(angle)};
    const double dx = flat.c.x - flat.b.x, dy = flat.c.y - flat.b.y;
    degrees += kSweepDegrees;
    if (std::sqrt(dx * dx + dy * dy) >= lengths.ca) break;
  }
  return flat;
}

LaidPair FlattenPair(const ModelStore& model, int part, int face, bool pair, const Vec3& origin) {
  const auto lengths = [&](int f) { return LengthsOf(CopiedCorners(model.Faces(part, f))); };
  LaidPair laid;
  laid.first = {{origin.X, origin.Y}, SweepTriangle(lengths(face))};
  if (!pair) return laid;
  const EdgeLengths second = lengths(face + 1);
  laid.second = {{origin.X - second.ab, origin.Y}, SweepTriangle(second)};
  return laid;
}

void PlaceTriangle(ModelStore& model, int part, int face, const LaidTriangle& laid, double elevation) {
  const FaceRec& f = model.Faces(part, face);
  Place(model.Points(part, f.corner1pt), laid.base, {}, elevation);
  Place(model.Points(part, f.corner2pt), laid.base, laid.shape.b, elevation);
  Place(model.Points(part, f.corner3pt), laid.base, laid.shape.c, elevation);
}

double EdgeAngle(const Vec3& p, const Vec3& q) {
  return RoundTo(std::atan((p.X - q.X) / ((p.Y - q.Y) + kTerm)) * kShownDegreesPerRadian, kAngleDecimals);
}

PairAngles MeasurePair(const ModelStore& model, int part, int face) {
  const FaceCorners first = CornersOf(model, part, face), second = CornersOf(model, part, face + 1);
  return {EdgeAngle(first.a, first.c), EdgeAngle(second.c, second.b)};
}

double AngleToPairBefore(const ModelStore& model, int part, int face) {
  const FaceCorners before = CornersOf(model, part, face - 2);
  const double g = EdgeAngle(before.b, before.c);
  return before.b.Y > before.c.Y ? -(g - 90) : -(g + 90);
}

Vec3 CentreOfPair(const ModelStore& model, int part, int face) {
  const auto [a, b, c] = CornersOf(model, part, face);
  const auto [d, e, f] = CornersOf(model, part, face + 1);
  return {(a.X + b.X + c.X + d.X + e.X + f.X) / 6, (a.Y + b.Y + c.Y + d.Y + e.Y + f.Y) / 6,
          (a.Z + b.Z + c.Z + d.Z + e.Z + f.Z) / 6};
}

void MoveToOrigin(ModelStore& model, int part, int face, const Vec3& origin) {
  const Vec3 a = CornersOf(model, part, face).a;
  const double dx = origin.X - a.X, dy = origin.Y - a.Y;
  ForEachChosen(model, {part, 1, model.Part(part).maxpoints}, [&](int, PointRec& point) {
    point.X += dx;
    point.Y += dy;
  });
}

}  // namespace pelorium

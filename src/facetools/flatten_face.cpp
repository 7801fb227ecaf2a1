// Flattening.
#include "facetools/flatten_face.h"

#include <cmath>

#include "base/numbers.h"
#include "facetools/face_measures.h"

namespace pelorium {

namespace {

// What keeps a level edge from dividing by zero; the first turn has a larger one.
constexpr double kFirstTerm = 0.001, kTerm = 0.0001;
constexpr int kDecimals = 2;
constexpr double kLaidZ = 10;

Vec3 Minus(const Vec3& p, const Vec3& q) { return {p.X - q.X, p.Y - q.Y, p.Z - q.Z}; }

Vec3 FirstEdge(const FaceCorners& corners, int face) {
  return face % 2 != 0 ? Minus(corners.a, corners.b) : Minus(corners.b, corners.c);
}

Vec3 Cross(const Vec3& u, const Vec3& v) {
  return {u.Y * v.Z - u.Z * v.Y, u.Z * v.X - u.X * v.Z, u.X * v.Y - u.Y * v.X};
}

}  // namespace

FaceTurn FlatTurn(const ModelStore& model, int part, int face, int step) {
  using enum Axis;
  const FaceCorners corners = CornersOf(model, part, face);
  const Vec3 edge = FirstEdge(corners, face);
  switch (step) {
    case 0:
      return {X, Y, std::atan(edge.X / (edge.Y + kFirstTerm))};
    case 1:
      return {Z, Y, std::atan(RoundTo(edge.Z, kDecimals) / (RoundTo(edge.Y, kDecimals) + kTerm))};
    default: {
      const Vec3 d = Minus(CentreOf(corners), corners.c);
      return {Z, X, std::atan(d.Z / (RoundTo(d.X, kDecimals) + kTerm))};
    }
  }
}

FaceTurn EvenTurn(const ModelStore& model, int part, int face) {
  const FaceCorners corners = CornersOf(model, part, face);
  const Vec3 d = Minus(corners.b, corners.c);
  return {Axis::X, Axis::Y, SlopeAngle(d.X, d.Y)};
}

Vec3 UnitNormal(const ModelStore& model, int part, int face) {
  const FaceCorners corners = CornersOf(model, part, face);
  const Vec3 n = Cross(Minus(corners.a, corners.b), Minus(corners.b, corners.c));
  const double length = std::sqrt(n.X * n.X + n.Y * n.Y + n.Z * n.Z);
  if (!(length > 0)) return {};
  return {n.X / length, n.Y / length, n.Z / length};
}

// A point above the plane goes along the normal's slant, so that it comes down where the face would, had it
// been folded about the line: the shift is its height times n / (1 + n.Z).
void LayFace(ModelStore& model, int part, int face) {
  Vec3 n = UnitNormal(model, part, face);
  if (n == Vec3{}) return;
  if (n.Z < 0) n = {-n.X, -n.Y, -n.Z};
  const FaceRec& f = model.Faces(part, face);
  for (const int corner : {f.corner1pt, f.corner2pt, f.corner3pt}) {
    PointRec& point = model.Points(part, corner);
    const double height = kLaidZ - point.Z;
    point.X += n.X * height / (1 + n.Z);
    point.Y += n.Y * height / (1 + n.Z);
    point.Z = kLaidZ;
  }
}

}  // namespace pelorium

// "Subdivide (tri)".
#include "geometry/subdivide.h"

#include <array>
#include <vector>

#include "geometry/disjoin.h"

namespace pelorium {

namespace {

Vec3 Centroid(const std::array<Vec3, 3>& corners) {
  const auto& [a, b, c] = corners;
  return {(a.X + b.X + c.X) / 3, (a.Y + b.Y + c.Y) / 3, (a.Z + b.Z + c.Z) / 3};
}

FaceRec Between(const Vec3& a, const Vec3& b, const Vec3& c, std::int16_t group) {
  FaceRec face;
  face.c1X = a.X, face.c1Y = a.Y, face.c1Z = a.Z;
  face.c2X = b.X, face.c2Y = b.Y, face.c2Z = b.Z;
  face.c3X = c.X, face.c3Y = c.Y, face.c3Z = c.Z;
  face.group = group;
  return face;
}

}  // namespace

void SubdivideFaces(ModelStore& model, int part) {
  const auto old = FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces);
  const std::vector<FaceRec> sources(old.begin(), old.end());
  int faces = 0;
  for (const FaceRec& face : sources) {
    if (face.onoff != 1) continue;
    const std::array<Vec3, 3> corners = {
        {{face.c1X, face.c1Y, face.c1Z}, {face.c2X, face.c2Y, face.c2Z}, {face.c3X, face.c3Y, face.c3Z}}};
    const Vec3 middle = Centroid(corners);
    for (std::size_t side = 0; side < 3 && faces < kMostSeparateFaces; ++side) {
      model.Faces(part, ++faces) = Between(corners[side], corners[(side + 1) % 3], middle, face.group);
    }
  }
  LaySeparateFaces(model, part, faces);
}

}  // namespace pelorium

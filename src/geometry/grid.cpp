// The grid walk.
#include "geometry/grid.h"

#include <algorithm>

namespace pelorium {

namespace {

constexpr int kStopAtFace = kMaxFaces;  // is not written any more

// The offsets of a quad's two faces from its lowest point number.
struct Corners {
  int a, b, c;
};

void WriteFace(FaceRec& face, const Corners& corners, int raisedBy) {
  face.corner1pt = std::min(corners.a + raisedBy, kMaxPoints);
  face.corner2pt = std::min(corners.b + raisedBy, kMaxPoints);
  face.corner3pt = std::min(corners.c + raisedBy, kMaxPoints);
  face.onoff = 1;
}

void WalkGrid(ModelStore& model, int part, int width, int rows, Seam seam, GridPlace place) {
  constexpr Corners kEmpty = {1, 1, 1};
  int face = place.facesBefore + 1, first = 1;
  for (int row = 0; row <= rows - 2; ++row) {
    for (int column = 0; column < width; ++column, ++first) {
      const bool isOpen = column == width - 1 && seam == Seam::Open;
      const Corners odd = isOpen ? kEmpty : Corners{first, first + 1, first + width};
      const Corners even = isOpen ? kEmpty : Corners{first + 1, first + 1 + width, first + width};
      for (const Corners& corners : {odd, even}) {
        if (face >= kStopAtFace) return;
        WriteFace(model.Faces(part, face++), corners, place.pointsBefore);
      }
    }
  }
}

}  // namespace

void BuildGridFaces(ModelStore& model, int part, int width, int rows, Seam seam, GridPlace place) {
  WalkGrid(model, part, width, rows, seam, place);
  const long long grid = std::max(0LL, static_cast<long long>(width) * (rows - 1) * 2 - 1);
  const long long faces = place.facesBefore + grid;
  PartHeader& header = model.Part(part);
  header.maxfaces = static_cast<std::int16_t>(std::clamp<long long>(faces, 0, kMaxFaces));
  header.minfaces = 1;
}

}  // namespace pelorium

// The grid walk.
#include "geometry/grid.h"

#include <algorithm>

namespace pelorium {

namespace {

constexpr int kStopAtFace = 7700;

// The offsets of a quad's two faces from its lowest point number.
struct Corners {
  int a, b, c;
};

void WriteFace(FaceRec& face, const Corners& corners) {
  face.corner1pt = std::min(corners.a, kMaxPoints);
  face.corner2pt = std::min(corners.b, kMaxPoints);
  face.corner3pt = std::min(corners.c, kMaxPoints);
  face.onoff = 1;
}

void WalkGrid(ModelStore& model, int part, int width, int rows, Seam seam) {
  constexpr Corners kEmpty = {1, 1, 1};
  int face = 1, first = 1;
  for (int row = 0; row <= rows - 2; ++row) {
    for (int column = 0; column < width; ++column, ++first) {
      const bool isOpen = column == width - 1 && seam == Seam::Open;
      const Corners odd = isOpen ? kEmpty : Corners{first, first + 1, first + width};
      const Corners even = isOpen ? kEmpty : Corners{first + 1, first + 1 + width, first + width};
      for (const Corners& corners : {odd, even}) {
        if (face >= kStopAtFace) return;
        WriteFace(model.Faces(part, face++), corners);
      }
    }
  }
}

}  // namespace

void BuildGridFaces(ModelStore& model, int part, int width, int rows, Seam seam) {
  WalkGrid(model, part, width, rows, seam);
  const long long faces = static_cast<long long>(width) * (rows - 1) * 2 - 1;
  PartHeader& header = model.Part(part);
  header.maxfaces = static_cast<std::int16_t>(std::clamp<long long>(faces, 0, kMaxFaces));
  header.minfaces = 1;
}

}  // namespace pelorium

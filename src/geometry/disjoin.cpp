// "Disjoin faces".
#include "geometry/disjoin.h"

#include "core/part_operations.h"

namespace pelorium {

void LaySeparateFaces(ModelStore& model, int part, int faces) {
  for (int number = 1; number <= faces; ++number) {
    FaceRec& face = model.Faces(part, number);
    const int last = 3 * number;
    face.corner1pt = last - 2, face.corner2pt = last - 1, face.corner3pt = last;
    face.onoff = 1;
    LayPoint(model, part, last - 2, Vec3{face.c1X, face.c1Y, face.c1Z});
    LayPoint(model, part, last - 1, Vec3{face.c2X, face.c2Y, face.c2Z});
    LayPoint(model, part, last, Vec3{face.c3X, face.c3Y, face.c3Z});
  }
  PartHeader& header = model.Part(part);
  header.maxfaces = static_cast<std::int16_t>(faces);
  header.maxpoints = static_cast<std::int16_t>(3 * faces);
  header.minfaces = header.minpoints = 1;
  header.grid.reset();
}

// No face moves up past one that is still to be read.
void DisjoinFaces(ModelStore& model, int part) {
  int faces = 0;
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (face.onoff != 1) continue;
    if (faces == kMostSeparateFaces) break;
    model.Faces(part, ++faces) = face;
  }
  LaySeparateFaces(model, part, faces);
}

}  // namespace pelorium

// The erasers.
#include "core/erase_part.h"

#include "core/part_operations.h"

namespace pelorium {

namespace {

void Empty(FaceRec& face) { face.corner1pt = face.corner2pt = face.corner3pt = 1; }

}  // namespace

void ErasePart(ModelStore& model, int part) {
  PartHeader& header = model.Part(part);
  header.maxpoints = header.minpoints = header.maxfaces = header.minfaces = 1;
  header.grid.reset();
  for (FaceRec& face : FaceRange(model, part, 1, kMaxFaces)) {
    face.c1X = face.c1Y = face.c1Z = 1;
    face.c2X = face.c2Y = face.c2Z = 1;
    face.c3X = face.c3Y = face.c3Z = 1;
    Empty(face);
    face.group = face.onoff = 1;
  }
  for (int point = 1; point <= kMaxPoints; ++point) LayPoint(model, part, point, Vec3{1, 1, 1});
}

void EraseFaces(ModelStore& model, int part) {
  model.Part(part).grid.reset();
  for (FaceRec& face : FaceRange(model, part, 1, kMaxFaces)) {
    Empty(face);
    face.onoff = 1;
  }
}

void EraseFacesTurnedOff(ModelStore& model, int part) {
  model.Part(part).grid.reset();
  for (int point = 1; point <= kMaxPoints; ++point) {
    model.Points(part, point).onoff = model.PointMark(part, point) = 1;
  }
  for (FaceRec& face : FaceRange(model, part, 1, kMaxFaces)) {
    if (face.onoff == 0) Empty(face);
  }
}

}  // namespace pelorium

// Operations on whole Parts.
#include "core/part_operations.h"

#include <cmath>

#include "base/fault.h"
#include "core/same_record.h"

namespace pelorium {

bool CornersAreInTable(const FaceRec& face) {
  const auto isIn = [](std::int32_t corner) { return corner >= 0 && corner <= kMaxPoints; };
  return isIn(face.corner1pt) && isIn(face.corner2pt) && isIn(face.corner3pt);
}

// Faces that have it right already are not written.
void SyncFaceCorners(ModelStore& model, int part) {
  const ModelStore& read = model;
  int number = FirstFace(model, part);
  for (const FaceRec& face : FaceRange(read, part, number, read.Part(part).maxfaces)) {
    const int at = number++;
    if (!CornersAreInTable(face)) continue;
    const PointRec& p1 = read.Points(part, face.corner1pt);
    const PointRec& p2 = read.Points(part, face.corner2pt);
    const PointRec& p3 = read.Points(part, face.corner3pt);
    FaceRec synced = face;
    synced.c1X = p1.X, synced.c1Y = p1.Y, synced.c1Z = p1.Z;
    synced.c2X = p2.X, synced.c2Y = p2.Y, synced.c2Z = p2.Z;
    synced.c3X = p3.X, synced.c3Y = p3.Y, synced.c3Z = p3.Z;
    if (!SameRecord(face, synced)) model.Faces(part, at) = synced;
  }
}

void RequireFinite(const PointRec& point) {
  if (std::isfinite(point.X) && std::isfinite(point.Y) && std::isfinite(point.Z)) return;
  throw Fault(FaultKind::Overflow, "a coordinate");
}

void MovePartTo(ModelStore& model, int part, const Vec3& place) {
  const PointRec& first = model.Points(part, 1);
  const Vec3 by = {place.X - first.X, place.Y - first.Y, place.Z - first.Z};
  for (int i = 1; i <= kMaxPoints; ++i) {
    PointRec& point = model.Points(part, i);
    point.X += by.X;
    point.Y += by.Y;
    point.Z += by.Z;
    RequireFinite(point);
  }
}

std::string CountCaption(const ModelStore& model, int part) {
  const PartHeader& header = model.Part(part);
  return std::to_string(header.maxfaces) + "faces  points " + std::to_string(header.maxpoints);
}

}  // namespace pelorium

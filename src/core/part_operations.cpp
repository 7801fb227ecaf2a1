// Operations on whole Parts.
#include "core/part_operations.h"

#include <cmath>

#include "base/fault.h"

namespace pelorium {

bool CornersAreInTable(const FaceRec& face) {
  const auto isIn = [](std::int32_t corner) { return corner >= 0 && corner <= kMaxPoints; };
  return isIn(face.corner1pt) && isIn(face.corner2pt) && isIn(face.corner3pt);
}

void SyncFaceCorners(ModelStore& model, int part) {
  for (FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (!CornersAreInTable(face)) continue;
    const PointRec& p1 = model.Points(part, face.corner1pt);
    const PointRec& p2 = model.Points(part, face.corner2pt);
    const PointRec& p3 = model.Points(part, face.corner3pt);
    face.c1X = p1.X, face.c1Y = p1.Y, face.c1Z = p1.Z;
    face.c2X = p2.X, face.c2Y = p2.Y, face.c2Z = p2.Z;
    face.c3X = p3.X, face.c3Y = p3.Y, face.c3Z = p3.Z;
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

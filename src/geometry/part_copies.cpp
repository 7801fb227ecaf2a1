// Copies of Parts. All is read before anything is written, so that a Part may be copied over itself.
#include "geometry/part_copies.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"
#include "core/part_operations.h"

namespace pelorium {

namespace {

struct MarkedPoint {
  PointRec point;
  std::int16_t mark;
};

std::vector<MarkedPoint> PointsOf(const ModelStore& model, int part) {
  std::vector<MarkedPoint> points;
  for (int i = 1; i <= model.Part(part).maxpoints; ++i)
    points.push_back({model.Points(part, i), model.PointMark(part, i)});
  return points;
}

std::vector<FaceRec> FacesOn(const ModelStore& model, int part) {
  std::vector<FaceRec> faces;
  for (const FaceRec& face : FaceRange(model, part, FirstFace(model, part), model.Part(part).maxfaces)) {
    if (face.onoff == 1) faces.push_back(face);
  }
  return faces;
}

int Fitting(std::size_t items, int offset, int limit) {
  return std::clamp(static_cast<int>(items), 0, std::max(0, limit - offset));
}

// The points are numbered from 1 behind the offset. Returns the target's new count.
int WritePoints(ModelStore& model, const PartCopy& copy, const std::vector<MarkedPoint>& points) {
  const int written = Fitting(points.size(), copy.pointOffset, kMaxPoints);
  for (int i = 1; i <= written; ++i) {
    const auto& [from, mark] = points[static_cast<std::size_t>(i) - 1];
    PointRec& point = model.Points(copy.to, copy.pointOffset + i);
    CopyPosition(point, from);
    point.onoff = from.onoff;
    model.PointMark(copy.to, copy.pointOffset + i) = mark;
  }
  return copy.pointOffset + written;
}

// Of a face: what the copies carry.
void WriteFace(FaceRec& to, const FaceRec& from) {
  to.c1X = from.c1X, to.c1Y = from.c1Y, to.c1Z = from.c1Z;
  to.c2X = from.c2X, to.c2Y = from.c2Y, to.c2Z = from.c2Z;
  to.c3X = from.c3X, to.c3Y = from.c3Y, to.c3Z = from.c3Z;
  to.group = from.group;
  to.onoff = 1;
}

void StoreCounts(ModelStore& model, int part, int points, int faces) {
  PartHeader& header = model.Part(part);
  header.maxpoints = Narrow<std::int16_t>(points);
  header.maxfaces = Narrow<std::int16_t>(faces);
  header.minpoints = header.minfaces = 1;
  header.grid.reset();
}

}  // namespace

PartCopy Appended(const ModelStore& model, int from, int to) {
  return {from, to, model.Part(to).maxpoints, model.Part(to).maxfaces};
}

void CopyPart(ModelStore& model, const PartCopy& copy) {
  const std::vector<FaceRec> faces = FacesOn(model, copy.from);
  const std::vector<MarkedPoint> points = PointsOf(model, copy.from);
  const int lastPoint = copy.copiesPoints ? WritePoints(model, copy, points) : model.Part(copy.to).maxpoints;
  const int written = Fitting(faces.size(), copy.faceOffset, kMaxFaces);
  for (int k = 1; k <= written; ++k) {
    const FaceRec& from = faces[static_cast<std::size_t>(k) - 1];
    FaceRec& face = model.Faces(copy.to, copy.faceOffset + k);
    WriteFace(face, from);
    face.corner1pt = std::min(from.corner1pt + copy.pointOffset, kMaxPoints);
    face.corner2pt = std::min(from.corner2pt + copy.pointOffset, kMaxPoints);
    face.corner3pt = std::min(from.corner3pt + copy.pointOffset, kMaxPoints);
  }
  StoreCounts(model, copy.to, lastPoint, copy.faceOffset + written);
}

void CopyPartDisjoint(ModelStore& model, const PartCopy& copy) {
  constexpr int kCorners = 3;
  const std::vector<FaceRec> faces = FacesOn(model, copy.from);
  const int written = std::min(Fitting(faces.size(), copy.faceOffset, kMaxFaces),
                               Fitting(faces.size() * kCorners, copy.pointOffset, kMaxPoints) / kCorners);
  for (int k = 1; k <= written; ++k) {
    const FaceRec& from = faces[static_cast<std::size_t>(k) - 1];
    FaceRec& face = model.Faces(copy.to, copy.faceOffset + k);
    WriteFace(face, from);
    face.corner3pt = copy.pointOffset + kCorners * k;
    face.corner2pt = face.corner3pt - 1;
    face.corner1pt = face.corner3pt - 2;
    LayPoint(model, copy.to, face.corner1pt, Vec3{from.c1X, from.c1Y, from.c1Z});
    LayPoint(model, copy.to, face.corner2pt, Vec3{from.c2X, from.c2Y, from.c2Z});
    LayPoint(model, copy.to, face.corner3pt, Vec3{from.c3X, from.c3Y, from.c3Z});
  }
  StoreCounts(model, copy.to, copy.pointOffset + kCorners * written, copy.faceOffset + written);
}

}  // namespace pelorium

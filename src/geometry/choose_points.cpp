// Choosing points.
#include "geometry/choose_points.h"

#include <algorithm>
#include <cmath>

namespace pelorium {

namespace {

double Distance(const PointRec& point, const Vec3& centre) {
  const double dx = point.X - centre.X, dy = point.Y - centre.Y, dz = point.Z - centre.Z;
  return std::sqrt(dx * dx + dy * dy + dz * dz);
}

}  // namespace

void MarkPoint(ModelStore& model, int part, int point, bool on) {
  model.Points(part, point).onoff = model.PointMark(part, point) = on ? 1 : 0;
}

void MarkPoints(ModelStore& model, int part, int first, int last, bool on) {
  for (int i = first; i <= last; ++i) MarkPoint(model, part, i, on);
}

void MarkEvery(ModelStore& model, int part, int step, bool on) {
  for (int i = 1; step >= 1 && i <= model.Part(part).maxpoints; i += step) MarkPoint(model, part, i, on);
}

void InvertPoints(ModelStore& model, int part, int first, int last) {
  for (int i = first; i <= last; ++i) MarkPoint(model, part, i, model.PointMark(part, i) != 1);
}

void MarkCorners(ModelStore& model, int part, int firstFace, int lastFace, bool on,
                 std::optional<int> group) {
  for (const FaceRec& face : FaceRange(model, part, firstFace, lastFace)) {
    if (group && face.group != *group) continue;
    for (const int corner : {face.corner1pt, face.corner2pt, face.corner3pt}) {
      if (corner >= 0 && corner <= kMaxPoints) MarkPoint(model, part, corner, on);
    }
  }
}

void MarkLayers(ModelStore& model, int part, const RingLayers& layers, bool on) {
  const int last = std::min<int>((layers.last + 1) * layers.ringWidth, model.Part(part).maxpoints);
  MarkPoints(model, part, layers.first * layers.ringWidth + 1, last, on);
}

void MarkWithin(ModelStore& model, int part, const Vec3& centre, double distance, bool on) {
  for (int i = 0; i <= model.Part(part).maxpoints; ++i) {
    if (Distance(model.Points(part, i), centre) <= distance) MarkPoint(model, part, i, on);
  }
}

void MarkOnlyBetween(ModelStore& model, int part, Axis axis, double low, double high) {
  for (int i = 1; i <= model.Part(part).maxpoints; ++i) {
    const double coordinate = Coordinate(model.Points(part, i), axis);
    MarkPoint(model, part, i, low <= coordinate && coordinate <= high);
  }
}

}  // namespace pelorium

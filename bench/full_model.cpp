// Models at the tables' limits.
#include "full_model.h"

#include <cmath>

#include "base/random_series.h"
#include "core/part_operations.h"

namespace pelorium {

namespace {

constexpr int kRing = 60;

// A wavy tube around the middle of the view, point by point along its rings.
void PlacePoint(PointRec& point, int part, int number) {
  const double turn = number % kRing * 2 * 3.14159 / kRing, along = number / kRing;
  const double radius = 150 + 60 * std::sin(along / 40);
  point.X = (part == 0 ? 150.37 : -120.61) + radius * std::cos(turn);
  point.Y = radius * std::sin(turn);
  point.Z = along * 1.3 - 250.25;
}

}  // namespace

void FillModel(ModelStore& model) {
  RandomSeries random;
  ResetModel(model, random);
  for (int part = 0; part < kUserParts; ++part) {
    for (int i = 1; i <= kMaxPoints; ++i) PlacePoint(model.Points(part, i), part, i);
    for (int f = 1; f <= kMaxFaces; ++f) {
      FaceRec& face = model.Faces(part, f);
      const int base = f * 2 + 1;
      face.corner1pt = base, face.corner2pt = base + 1, face.corner3pt = base + kRing;
      face.group = static_cast<std::int16_t>(f % (kMaxGroup + 1));
    }
    model.Part(part).maxpoints = kMaxPoints;
    model.Part(part).maxfaces = kMaxFaces;
    SyncFaceCorners(model, part);
  }
}

}  // namespace pelorium

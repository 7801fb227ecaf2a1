// Typed records.
#include "core/record_entry.h"

#include <algorithm>

#include "base/numbers.h"

namespace pelorium {

namespace {

template <typename Field>
Field Held(double value, int lowest, int highest) {
  return ToInteger<Field>(std::clamp<double>(value, lowest, highest));
}

std::int32_t Corner(double typed) {
  return RoundHalfEven(typed) == 0 ? 0 : Held<std::int32_t>(typed, 1, kMaxPoints);
}

}  // namespace

void StorePointEntry(ModelStore& model, int part, int point, const Vec3& place, double onoff) {
  PointRec& record = model.Points(part, point);
  CopyPosition(record, place);
  record.onoff = model.PointMark(part, point) = Held<std::int16_t>(onoff, 0, 1);
}

void StoreFaceEntry(ModelStore& model, int part, int face, const std::array<double, 3>& corners,
                    double onoff) {
  FaceRec& record = model.Faces(part, face);
  record.corner1pt = Corner(corners[0]);
  record.corner2pt = Corner(corners[1]);
  record.corner3pt = Corner(corners[2]);
  if (record.corner1pt == 0 || record.corner2pt == 0 || record.corner3pt == 0) record.corner1pt = 1;
  record.onoff = Held<std::int16_t>(onoff, 0, 1);
}

void StoreCountEntry(ModelStore& model, int part, double points, double faces) {
  model.Part(part).maxpoints = Held<std::int16_t>(points, 0, kMaxPoints);
  model.Part(part).maxfaces = Held<std::int16_t>(faces, 0, kMaxFaces);
  model.Part(part).grid.reset();
}

}  // namespace pelorium

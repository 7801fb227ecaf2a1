// What the readers of texture coordinates share.
#include "interchange/uv_lines.h"

#include <algorithm>

#include "base/numbers.h"
#include "core/part_operations.h"

namespace pelorium {

int UvPointsIn(const UvLines& lines) {
  return static_cast<int>(std::min<std::int64_t>(lines.points.count(), kMaxPoints));
}

void StoreUvCounts(PartHeader& part, const UvLines& lines) {
  const auto points = Narrow<std::int16_t>(lines.points.count());
  const auto faces = Narrow<std::int16_t>(lines.faces.count());
  part.vtcount = std::min<std::int16_t>(points, kMaxPoints);
  part.vtfacecount = std::min<std::int16_t>(faces, kMaxFaces);
}

void LayUvPoint(ModelStore& model, int part, int point, double u, double v) {
  LayPoint(model, part, point, Vec3{u, v, kUvModelZ});
}

void FinishUvModel(ModelStore& model, int part, const UvLines& lines) {
  const int faces = static_cast<int>(lines.faces.count());
  for (const FaceRec& face : FaceRange(model, part, 1, faces)) {
    if (!CornersAreInTable(face)) throw Fault(FaultKind::Subscript, "a corner below 0");
  }
  PartHeader& header = model.Part(part);
  header.maxpoints = static_cast<std::int16_t>(UvPointsIn(lines));
  header.maxfaces = static_cast<std::int16_t>(faces);
  header.minpoints = header.minfaces = 1;
  header.grid.reset();
  SyncFaceCorners(model, part);
}

}  // namespace pelorium

// A temporary store of one Part's points.
#include "geometry/temp_points.h"

namespace pelorium {

namespace {

void CopyPoints(ModelStore& model, int from, int to) {
  const int last = model.Part(from).maxpoints;
  for (int i = 1; i <= last; ++i) {
    CopyPosition(model.Points(to, i), model.Points(from, i));
    model.Points(to, i).onoff = model.Points(from, i).onoff;
    model.PointMark(to, i) = model.PointMark(from, i);
  }
  model.Part(to).maxpoints = model.Part(from).maxpoints;
}

}  // namespace

void SavePoints(ModelStore& model, int part) { CopyPoints(model, part, kTempPart); }

int RestorePoints(ModelStore& model, int part) {
  const int kept = model.Part(kTempPart).maxpoints;
  if (kept > 0) CopyPoints(model, kTempPart, part);
  return kept;
}

}  // namespace pelorium

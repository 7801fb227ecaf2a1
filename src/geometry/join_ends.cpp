// Closing the rings and the layers of a generated Part.
#include "geometry/join_ends.h"

namespace pelorium {

void JoinRingEnds(ModelStore& model, int part, int ringWidth) {
  if (ringWidth < 1) return;
  for (int last = ringWidth; last <= model.Part(part).maxpoints; last += ringWidth) {
    const PointRec& first = model.Points(part, last - ringWidth + 1);
    PointRec& end = model.Points(part, last);
    CopyPosition(end, first);
  }
}

void JoinLayerEnds(ModelStore& model, int part, int ringWidth, JoinedLayer moved) {
  if (ringWidth < 1) return;
  const int layers = model.Part(part).maxpoints / ringWidth;
  if (layers < 2) return;
  const int toLast = (layers - 1) * ringWidth;
  for (int number = 1; number <= ringWidth; ++number) {
    PointRec& first = model.Points(part, number);
    PointRec& last = model.Points(part, toLast + number);
    moved == JoinedLayer::Last ? CopyPosition(last, first) : CopyPosition(first, last);
  }
}

}  // namespace pelorium

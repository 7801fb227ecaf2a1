// Closing the rings of a generated Part.
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

}  // namespace pelorium

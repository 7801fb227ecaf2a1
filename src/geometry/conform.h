// Shapes the chosen points by the gray levels of a picture that lies under the model: its row 637 passes
// through Y 0, a pixel a unit.
#pragma once

#include "core/chosen_points.h"
#include "graphics/picture.h"

namespace pelorium {

// Which points are taken: chosen ones over a pixel whose gray level lies in the range, and whose Z does. The
// others stay bit for bit; so do those outside the picture.
struct ConformRange {
  ChosenPoints chosen;
  double minGray = 0, maxGray = 249;  // 0..255
  double minZ = -1200, maxZ = 1200;
};

struct ConformScale {
  bool alongX = true, alongY = true;
  double factor = 1;  // about the origin
  Vec3 origin;
};

// A coordinate that is no finite number any more raises an Overflow fault.
void ConformToGray(ModelStore& model, const Picture& picture, const ConformRange& range,
                   const ConformScale& scale);

// Z becomes the gray level times `height`.
void LiftToGray(ModelStore& model, const Picture& picture, const ConformRange& range, double height);

}  // namespace pelorium

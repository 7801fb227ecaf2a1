// Gray levels as elevations.
#include "profiles/gray_to_z.h"

#include <algorithm>

#include "graphics/picture_gray.h"

namespace pelorium {

void GrayToZ(ModelStore& model, int profile, LayerSpan points, const GrayLevels& levels) {
  for (int i = std::max(0, points.first); i <= std::min(points.last, kMaxLayer); ++i) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    const int gray = GrayAt(levels.image, point.X + levels.panX, -(point.Y + levels.panY));
    if (gray >= 0) point.Z = gray * levels.height;
  }
}

}  // namespace pelorium

// Gray levels as elevations.
#include "profiles/gray_to_z.h"

#include <algorithm>
#include <cmath>

#include "base/colour.h"

namespace pelorium {

namespace {

// The number of the pixel at a place; -1 when it lies far outside any image.
int PixelNumber(double place) {
  const double number = std::floor(place);
  return number >= 0 && number <= Picture::kMaxSide ? static_cast<int>(number) : -1;
}

}  // namespace

void GrayToZ(ModelStore& model, int profile, LayerSpan points, const GrayLevels& levels) {
  for (int i = std::max(0, points.first); i <= std::min(points.last, kMaxLayer); ++i) {
    ProfilePointRec& point = model.ProfilePts(i, profile);
    const int column = PixelNumber(point.X + levels.panX), row = PixelNumber(-(point.Y + levels.panY));
    const int gray = GrayLevel(levels.image.PixelAt(column, row));
    if (gray >= 0) point.Z = gray * levels.height;
  }
}

}  // namespace pelorium

// Zooming.
#include "views/zoom.h"

#include <cmath>

namespace pelorium {

namespace {
constexpr double kNarrowest = 1, kWidest = 8000;  // units across the picture
}

bool Zoom(Picture& picture, double factor) {
  const double width = picture.ScaleWidth() * factor;
  if (width < kNarrowest || width > kWidest) return false;
  picture.SetScale(width, picture.ScaleHeight() * factor);
  return true;
}

int PanAfterZoom(double oldScaleHeight, double newScaleHeight) {
  return static_cast<int>(std::floor((oldScaleHeight - newScaleHeight) / 2));
}

}  // namespace pelorium

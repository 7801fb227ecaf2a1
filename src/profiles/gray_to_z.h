// Elevations of profile points from the gray levels of an image.
#pragma once

#include "graphics/picture.h"
#include "profiles/edit_points.h"

namespace pelorium {

// Z of each point becomes the gray level (0..255) of the image's pixel under it, times `height`. The pixel of
// a point is at column X + panX and row -(Y + panY), down from the top left. A point outside the image keeps
// its Z.
struct GrayLevels {
  const Picture& image;
  double panX = 0, panY = 0;
  double height = 1;
};

void GrayToZ(ModelStore& model, int profile, LayerSpan points, const GrayLevels& levels);

}  // namespace pelorium

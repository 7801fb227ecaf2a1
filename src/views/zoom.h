// Zooming of the wire views: only the surface's scale changes, and the pans follow so that the picture stays
// about centred.
#pragma once

#include "graphics/picture.h"

namespace pelorium {

inline constexpr double kZoomIn = 0.75;
inline constexpr double kZoomOut = 1.25;
inline constexpr double kZoomOutGently = 1.1;

// Multiplies both scales by `factor`; false, and nothing changed, when the picture would then be less than 1
// or more than 8000 units wide.
bool Zoom(Picture& picture, double factor);

// How far both pans move back after a zoom. The height's change serves X as well.
int PanAfterZoom(double oldScaleHeight, double newScaleHeight);

}  // namespace pelorium

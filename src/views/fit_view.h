// Where the model lies in a view, so that the view can be laid around it.
#pragma once

#include <optional>

#include "views/view_settings.h"

namespace pelorium {

// A rectangle of a picture, in units and before the pans.
struct ScreenExtent {
  double left = 0, right = 0, bottom = 0, top = 0;
};

// Of the points in use of both user Parts, as the settings' view shows them; all three pictures of the tri
// view. Nothing without points.
std::optional<ScreenExtent> ExtentInView(const ModelStore& model, const ViewSettings& settings);

// How far the farthest of those points lies from zero; 0 without points.
double ReachOfParts(const ModelStore& model);

// Units of a pixel, and pans in whole units, that show the extent in the middle of a picture and fill
// nine tenths of it.
struct FittedView {
  double unitsPerPixel = 1;
  int panX = 0, panY = 0;
};
FittedView FitInto(const ScreenExtent& extent, int pixelWidth, int pixelHeight);

}  // namespace pelorium

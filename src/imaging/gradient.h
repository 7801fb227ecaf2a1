// Blends from one colour to another over a whole picture.
#pragma once

#include "graphics/picture.h"

namespace pelorium {

struct Gradient {
  Colour start = Rgb(0, 0, 0), end = Rgb(255, 255, 255);
};

// Lines from edge to edge in width 1: line i of n has start + (end - start) * i / n in each channel, half to
// even, so that the last one is a step short of the end. The pen keeps the last colour; the width stays.
void FillAcross(Picture& picture, const Gradient& gradient);  // from left to right
void FillDown(Picture& picture, const Gradient& gradient);    // from top to bottom

}  // namespace pelorium

// The picture that colours are picked from.
#pragma once

#include "graphics/picture.h"

namespace pelorium {

inline constexpr int kPaletteWidth = 256, kPaletteHeight = 60, kPaletteGrayRows = 8;

// All hues from left to right, each from white over the full colour to black from top to bottom; the lowest
// rows are a ramp of grays. The picture takes the palette's size.
void PaintPalette(Picture& picture);

}  // namespace pelorium

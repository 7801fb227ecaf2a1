// Lines and dots on a grid of pixels, clipped to it.
#pragma once

#include <cstdint>

#include "base/colour.h"

namespace pelorium {

struct Pixel {
  int x;  // from the left
  int y;  // from the top
};

// Pixels further out than this count as lying here: far outside any picture, and near enough that the line
// arithmetic cannot overflow.
inline constexpr int kFarAway = 1 << 24;

struct PixelGrid {
  std::uint32_t* pixels;  // row by row from the top
  int width, height;

  bool Holds(Pixel p) const { return p.x >= 0 && p.y >= 0 && p.x < width && p.y < height; }
  std::uint32_t* At(Pixel p) const { return pixels + static_cast<std::ptrdiff_t>(p.y) * width + p.x; }
};

// An integer DDA along the longer axis. Width 1: the start is set, the end is not. Wider: a dot at each step,
// both ends included.
void RasteriseLine(const PixelGrid& grid, Pixel from, Pixel to, int width, Colour colour);

// A disc of diameter `width`. An odd width is centred on the pixel, an even one on its top left corner; a
// pixel belongs when its centre lies within width / 2.
void RasteriseDot(const PixelGrid& grid, Pixel at, int width, Colour colour);

}  // namespace pelorium

// Clouds between the colours of four corners.
#pragma once

#include <array>
#include <functional>

#include "base/random_series.h"
#include "graphics/picture.h"

namespace pelorium {

struct CornerPlasma {
  using Levels = std::array<int, 3>;  // red, green, blue

  struct Channel {
    bool isMoved = true;  // else it runs evenly from corner to corner
    int least = 0, most = 255;
  };

  int width = 964, height = 635;         // pixels (0, 0) to (width, height) are painted, both included
  std::array<Levels, 4> corners{};       // upper left, upper right, lower left, lower right
  double size = 0.5;                     // units of a move for each pixel of a rectangle's sides
  double roughness = 0.5, scale = 0.25;  // factors on the moves
  std::array<Channel, 3> channels{};
  bool movesAlike = true;  // all channels by one draw, so that grays stay gray; else each by its own
  bool tiles = false;      // the upper left quarter, mirrored both ways
};

// Halves the rectangle again and again: each new place is the mean of its ends, or of four corners, with the
// channels that are moved up or down by chance and all held in their ranges. Whole numbers are rounded half
// to even. What lies outside the picture is worked out and not seen. `onRefresh` is called at every 1000th
// rectangle, when the picture may be shown. A move past 32 bits raises Overflow.
void PaintCornerPlasma(Picture& picture, const CornerPlasma& plasma, RandomSeries& random,
                       const std::function<void()>& onRefresh = {});

}  // namespace pelorium

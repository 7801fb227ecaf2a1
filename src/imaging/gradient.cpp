// The colour of each line.
#include "imaging/gradient.h"

#include <algorithm>

#include "imaging/canvas.h"

namespace pelorium {

namespace {

Colour LineColour(const Gradient& gradient, int i, int lines) {
  const auto channel = [&](int start, int end) {
    return start + static_cast<double>((end - start) * i) / lines;
  };
  return ColourOf(channel(Red(gradient.start), Red(gradient.end)),
                  channel(Green(gradient.start), Green(gradient.end)),
                  channel(Blue(gradient.start), Blue(gradient.end)));
}

}  // namespace

void FillAcross(Picture& picture, const Gradient& gradient) {
  const PixelGrid grid = picture.Edit();
  for (int x = 0; x < grid.width; ++x) *grid.At({x, 0}) = LineColour(gradient, x, grid.width);
  for (int y = 1; y < grid.height; ++y) std::copy_n(grid.pixels, grid.width, grid.At({0, y}));
  picture.foreColour = LineColour(gradient, grid.width - 1, grid.width);
}

void FillDown(Picture& picture, const Gradient& gradient) {
  const PixelGrid grid = picture.Edit();
  for (int y = 0; y < grid.height; ++y) {
    picture.foreColour = LineColour(gradient, y, grid.height);
    std::fill_n(grid.At({0, y}), grid.width, picture.foreColour);
  }
}

}  // namespace pelorium

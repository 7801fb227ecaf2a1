// Lines and dots. What lies wholly inside the grid, nearly everything in a working view, takes the quick
// ways.
#include "graphics/rasteriser.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <vector>

namespace pelorium {

namespace {

constexpr int kWidestStoredDot = 16;

// One row of a dot, relative to its place.
struct Span {
  int row, left, count;
};

std::vector<Span> SpansOf(int width) {
  const bool even = width % 2 == 0;
  const double shift = even ? 0.5 : 0;  // from a pixel's place to its centre, seen from the dot's centre
  std::vector<Span> spans;
  for (int row = -(width / 2); row <= width / 2; ++row) {
    const double rest = width * width / 4.0 - (row + shift) * (row + shift);
    if (rest < 0) continue;
    const int half = static_cast<int>(std::floor(std::sqrt(rest) + shift));
    const int count = even ? 2 * half : 2 * half + 1;
    if (count > 0) spans.push_back({row, -half, count});
  }
  return spans;
}

// The widths that the views use are worked out once.
const std::vector<Span>& StoredSpans(int width) {
  static const auto table = [] {
    std::array<std::vector<Span>, kWidestStoredDot + 1> spans;
    for (int w = 1; w <= kWidestStoredDot; ++w) spans[static_cast<std::size_t>(w)] = SpansOf(w);
    return spans;
  }();
  return table[static_cast<std::size_t>(width)];
}

void FillClipped(const PixelGrid& grid, Pixel at, const Span& span, Colour colour) {
  const int y = at.y + span.row;
  if (y < 0 || y >= grid.height) return;
  const int left = std::max(at.x + span.left, 0), right = std::min(at.x + span.left + span.count, grid.width);
  if (left < right) std::fill_n(grid.At({left, y}), right - left, colour);
}

void FillSpans(const PixelGrid& grid, Pixel at, int width, const std::vector<Span>& spans, Colour colour) {
  const bool inside = grid.Holds({at.x - width, at.y - width}) && grid.Holds({at.x + width, at.y + width});
  if (!inside) {
    for (const Span& span : spans) FillClipped(grid, at, span, colour);
    return;
  }
  std::uint32_t* const centre = grid.At(at);
  for (const Span& span : spans) {
    std::uint32_t* pixel = centre + static_cast<std::ptrdiff_t>(span.row) * grid.width + span.left;
    for (std::uint32_t* const end = pixel + span.count; pixel != end; ++pixel) *pixel = colour;
  }
}

// The walk of one line: along the longer axis at every step, aside when the carried fraction is full.
struct Walk {
  bool alongX;
  std::int64_t length, across;  // pixels along the longer and the other axis
  int stepX, stepY;
};

Walk WalkBetween(Pixel from, Pixel to) {
  const std::int64_t dx = to.x - from.x, dy = to.y - from.y;
  const bool alongX = std::llabs(dx) >= std::llabs(dy);
  return {alongX, alongX ? std::llabs(dx) : std::llabs(dy), alongX ? std::llabs(dy) : std::llabs(dx),
          dx < 0 ? -1 : 1, dy < 0 ? -1 : 1};
}

void ThinLineInside(const PixelGrid& grid, Pixel from, const Walk& walk, Colour colour) {
  const std::ptrdiff_t down = static_cast<std::ptrdiff_t>(walk.stepY) * grid.width;
  const std::ptrdiff_t along = walk.alongX ? walk.stepX : down, aside = walk.alongX ? down : walk.stepX;
  const int length = static_cast<int>(walk.length), across = static_cast<int>(walk.across);
  std::uint32_t* pixel = grid.At(from);
  int error = length / 2;
  for (int left = length; left > 0; --left) {
    *pixel = colour;
    pixel += along;
    error += across;
    if (error >= length) {
      error -= length;
      pixel += aside;
    }
  }
}

}  // namespace

void RasteriseDot(const PixelGrid& grid, Pixel at, int width, Colour colour) {
  if (width <= 1) {
    if (grid.Holds(at)) *grid.At(at) = colour;
  } else if (width <= kWidestStoredDot) {
    FillSpans(grid, at, width, StoredSpans(width), colour);
  } else {
    FillSpans(grid, at, width, SpansOf(width), colour);
  }
}

void RasteriseLine(const PixelGrid& grid, Pixel from, Pixel to, int width, Colour colour) {
  const Walk walk = WalkBetween(from, to);
  if (width <= 1 && grid.Holds(from) && grid.Holds(to)) return ThinLineInside(grid, from, walk, colour);

  // The steps whose longer coordinate lies inside the grid, and a pen's width about it; the rest is skipped
  // in one stride.
  const int start = walk.alongX ? from.x : from.y, limit = walk.alongX ? grid.width : grid.height;
  const bool forward = (walk.alongX ? walk.stepX : walk.stepY) > 0;
  const std::int64_t first = std::max<std::int64_t>(0, (forward ? -start : start - limit + 1) - width);
  const bool setsEnd = width > 1;
  const std::int64_t last =
      std::min<std::int64_t>(walk.length + (setsEnd ? 1 : 0), (forward ? limit - start : start + 1) + width);
  if (first >= last) return;
  if (walk.length == 0) return RasteriseDot(grid, from, width, colour);

  const std::int64_t travelled = walk.length / 2 + first * walk.across;
  std::int64_t error = travelled % walk.length;
  const int moved = static_cast<int>(travelled / walk.length), begun = static_cast<int>(first);
  Pixel at = {from.x + walk.stepX * (walk.alongX ? begun : moved),
              from.y + walk.stepY * (walk.alongX ? moved : begun)};
  for (std::int64_t step = first; step < last; ++step) {
    RasteriseDot(grid, at, width, colour);
    error += walk.across;
    const bool aside = error >= walk.length;
    if (aside) error -= walk.length;
    if (walk.alongX || aside) at.x += walk.stepX;
    if (!walk.alongX || aside) at.y += walk.stepY;
  }
}

}  // namespace pelorium

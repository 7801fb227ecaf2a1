// Places, colours and the marks themselves.
#include "imaging/canvas.h"

#include <cmath>
#include <cstdlib>

#include "base/fault.h"
#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr std::int64_t kMaxImagePixels = 64LL << 20;

int Level(double value) {
  if (!(value > 0)) return 0;
  return value < 255 ? static_cast<int>(RoundHalfEven(value)) : 255;
}

// The largest whole number whose square is at most `square`; -1 below 0.
int RootBelow(std::int64_t square) {
  if (square < 0) return -1;
  auto root = static_cast<std::int64_t>(std::sqrt(static_cast<double>(square)));
  while (root * root > square) --root;
  while ((root + 1) * (root + 1) <= square) ++root;
  return static_cast<int>(root);
}

}  // namespace

int RoundedPlace(double place) {
  if (!(place > -kFarAway)) return -kFarAway;  // a NaN too
  return place < kFarAway ? static_cast<int>(RoundHalfEven(place)) : kFarAway;
}

Colour ColourOf(double red, double green, double blue) { return Rgb(Level(red), Level(green), Level(blue)); }

// In doubled units all of it is whole: 4 (dx dx + dy dy) against the squares of both edges.
CircleStamp::CircleStamp(int radius, int width) : radius_(std::abs(radius)), width_(std::max(width, 1)) {
  const std::int64_t inner = std::max(2 * radius_ - width_, 0), outer = 2 * radius_ + width_;
  for (int row = -static_cast<int>(outer / 2); row <= outer / 2 && radius_ > 0; ++row) {
    const std::int64_t height = 4LL * row * row;
    const int end = RootBelow((outer * outer - height) / 4);
    const std::int64_t hole = inner * inner - height;
    const int start = hole > 0 ? RootBelow((hole - 1) / 4) + 1 : 0;  // the first column outside the hole
    if (start > end) continue;
    if (start == 0) {
      spans_.push_back({row, -end, end + 1});
    } else {
      spans_.push_back({row, -end, -start + 1});
      spans_.push_back({row, start, end + 1});
    }
  }
}

void CircleStamp::Set(const PixelGrid& grid, Pixel centre, Colour colour) const {
  if (radius_ == 0) return RasteriseDot(grid, centre, width_, colour);
  for (const Span& span : spans_) {
    const int y = centre.y + span.row;
    const int left = std::max(centre.x + span.left, 0), end = std::min(centre.x + span.end, grid.width);
    if (y >= 0 && y < grid.height && left < end) std::fill_n(grid.At({left, y}), end - left, colour);
  }
}

void FillSquare(const PixelGrid& grid, Pixel corner, int side, Colour colour) {
  const int left = std::max(corner.x, 0), end = std::min(corner.x + side, grid.width);
  for (int y = std::max(corner.y, 0); y < std::min(corner.y + side, grid.height) && left < end; ++y) {
    std::fill_n(grid.At({left, y}), end - left, colour);
  }
}

void PaintDot(Picture& picture, double x, double y) {
  RasteriseDot(picture.Edit(), ToPixel(x, y), picture.drawWidth, picture.foreColour);
}

void PaintCircle(Picture& picture, double x, double y, int radius) {
  CircleStamp(radius, picture.drawWidth).Set(picture.Edit(), ToPixel(x, y), picture.foreColour);
}

void PaintLine(Picture& picture, double x0, double y0, double x1, double y1) {
  RasteriseLine(picture.Edit(), ToPixel(x0, y0), ToPixel(x1, y1), picture.drawWidth, picture.foreColour);
}

void ResizeKeeping(Picture& picture, double width, double height) {
  const int newWidth = std::max(ToPixelPlace(width), 1), newHeight = std::max(ToPixelPlace(height), 1);
  if (newWidth > Picture::kMaxSide || newHeight > Picture::kMaxSide ||
      static_cast<std::int64_t>(newWidth) * newHeight > kMaxImagePixels) {
    throw Fault(FaultKind::InvalidValue, "an image of more than 64 million pixels");
  }
  const int oldWidth = picture.PixelWidth(), oldHeight = picture.PixelHeight();
  if (newWidth == oldWidth && newHeight == oldHeight) return;
  const std::vector<std::uint32_t> old = picture.Pixels();
  picture.Resize(newWidth, newHeight);
  picture.SetScale(newWidth, newHeight);
  const PixelGrid grid = picture.Edit();
  for (int y = 0; y < std::min(oldHeight, newHeight); ++y) {
    std::copy_n(old.begin() + static_cast<std::ptrdiff_t>(y) * oldWidth, std::min(oldWidth, newWidth),
                grid.At({0, y}));
  }
}

}  // namespace pelorium

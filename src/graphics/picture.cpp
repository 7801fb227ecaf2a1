// Recording and rasterising of the drawing calls.
#include "graphics/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "base/fault.h"

namespace pelorium {

namespace {

// Pixels further out than this are drawn as if they lay here: far outside any picture, and small enough that
// the line arithmetic cannot overflow.
constexpr double kFarAway = 1 << 24;
constexpr int kWidestStoredDot = 16;
constexpr std::size_t kMaxPendingCalls = 1 << 20;

int ToPixelNumber(double user, int pixels, double scale) {
  const double at = std::floor(user * pixels / scale);
  if (std::isnan(at)) return static_cast<int>(-kFarAway);
  return static_cast<int>(std::clamp(at, -kFarAway, kFarAway));
}

// Half the length of a dot's row, in pixels: the row at distance `dy` from the centre covers [-half, half)
// about it. `offset` is 0 for odd widths (centre of a pixel) and 0.5 for even ones (corner of a pixel).
int HalfSpan(int width, int row, double offset) {
  const double dy = row + offset;
  const double rest = width * width / 4.0 - dy * dy;
  if (rest < 0) return -1;
  return static_cast<int>(std::floor(std::sqrt(rest) + (offset == 0 ? 1.0 : 0.5)));
}

using HalfSpans = std::array<std::int8_t, kWidestStoredDot + 1>;

// Half spans of the rows -width/2 .. width/2 for the widths that the views use, worked out once.
const HalfSpans& StoredHalfSpans(int width) {
  static const auto table = [] {
    std::array<HalfSpans, kWidestStoredDot + 1> spans{};
    for (int w = 1; w <= kWidestStoredDot; ++w) {
      for (int row = -(w / 2); row <= w / 2; ++row) {
        spans[static_cast<std::size_t>(w)][static_cast<std::size_t>(row + w / 2)] =
            static_cast<std::int8_t>(HalfSpan(w, row, w % 2 == 0 ? 0.5 : 0));
      }
    }
    return spans;
  }();
  return table[static_cast<std::size_t>(width)];
}

}  // namespace

Picture::Picture(int width, int height)
    : width_(std::clamp(width, 1, kMaxSide)),
      height_(std::clamp(height, 1, kMaxSide)),
      scaleWidth_(width_),
      scaleHeight_(height_),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {}

void Picture::SetScale(double scaleWidth, double scaleHeight) {
  if (scaleWidth == 0 || scaleHeight == 0) throw Fault(FaultKind::DivisionByZero, "scale of a picture");
  scaleWidth_ = scaleWidth;
  scaleHeight_ = scaleHeight;
}

void Picture::Resize(int width, int height) {
  width_ = std::clamp(width, 1, kMaxSide);
  height_ = std::clamp(height, 1, kMaxSide);
  pixels_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), backColour);
  Clear();
}

void Picture::Clear() {
  calls_.clear();
  cleared_ = true;
  ++revision_;
}

void Picture::Line(float x0, float y0, float x1, float y1, Colour colour) {
  Record({ToPixel(x0, y0), ToPixel(x1, y1), colour, StoredWidth(), false});
}

void Picture::Dot(float x, float y, Colour colour) { DotAt(ToPixel(x, y), colour); }

void Picture::LineBetween(Pixel from, Pixel to) {
  Record({from, to, foreColour, StoredWidth(), false});
}

void Picture::DotAt(Pixel at, Colour colour) {
  Record({at, at, colour, StoredWidth(), true});
}

std::int16_t Picture::StoredWidth() const {
  return static_cast<std::int16_t>(std::clamp<int>(drawWidth, 1, std::numeric_limits<std::int16_t>::max()));
}

void Picture::Record(const Call& call) {
  if (calls_.size() >= kMaxPendingCalls) Rasterise();
  calls_.push_back(call);
  ++revision_;
}

Pixel Picture::ToPixel(float x, float y) const {
  return {ToPixelNumber(x, width_, scaleWidth_), ToPixelNumber(y, height_, scaleHeight_)};
}

float Picture::ToUserX(int pixelX) const { return static_cast<float>(pixelX * scaleWidth_ / width_); }
float Picture::ToUserY(int pixelY) const { return static_cast<float>(pixelY * scaleHeight_ / height_); }

int Picture::PixelAt(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return -1;
  return static_cast<int>(
      Pixels()[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)]);
}

const std::vector<std::uint32_t>& Picture::Pixels() const {
  Rasterise();
  return pixels_;
}

void Picture::SetPixels(const std::vector<std::uint32_t>& pixels) {
  Rasterise();
  std::copy_n(pixels.begin(), std::min(pixels.size(), pixels_.size()), pixels_.begin());
  ++revision_;
}

void Picture::Rasterise() const {
  if (cleared_) std::fill(pixels_.begin(), pixels_.end(), backColour);
  cleared_ = false;
  for (const Call& call : calls_) {
    if (call.isDot) {
      RasteriseDot(call.from, call.width, call.colour);
    } else {
      RasteriseLine(call);
    }
  }
  calls_.clear();
}

// Walks the longer axis pixel by pixel. `error` carries the fraction of the other axis in units of 1 /
// length.
void Picture::RasteriseLine(const Call& call) const {
  const std::int64_t dx = call.to.x - call.from.x, dy = call.to.y - call.from.y;
  const bool alongX = std::llabs(dx) >= std::llabs(dy);
  const std::int64_t length = alongX ? std::llabs(dx) : std::llabs(dy);
  const std::int64_t across = alongX ? std::llabs(dy) : std::llabs(dx);
  const int stepX = dx < 0 ? -1 : 1, stepY = dy < 0 ? -1 : 1;

  // The steps whose longer coordinate lies inside the picture; the rest is skipped in one stride.
  const int start = alongX ? call.from.x : call.from.y, limit = alongX ? width_ : height_;
  const bool forward = (alongX ? stepX : stepY) > 0;
  const std::int64_t reach = call.width;  // a wide pen shows before its centre comes in
  const std::int64_t first = std::max<std::int64_t>(0, (forward ? -start : start - limit + 1) - reach);
  const std::int64_t last = std::min<std::int64_t>(length, (forward ? limit - start : start + 1) + reach);
  if (first >= last) return;

  const std::int64_t travelled = length / 2 + first * across;
  std::int64_t error = travelled % length;
  const std::int64_t moved = travelled / length;
  int x = call.from.x + stepX * static_cast<int>(alongX ? first : moved);
  int y = call.from.y + stepY * static_cast<int>(alongX ? moved : first);
  for (std::int64_t step = first; step < last; ++step) {
    if (call.width > 1) {
      RasteriseDot({x, y}, call.width, call.colour);
    } else if (x >= 0 && x < width_ && y >= 0 && y < height_) {
      pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)] =
          call.colour;
    }
    error += across;
    const bool aside = error >= length;
    if (aside) error -= length;
    if (alongX || aside) x += stepX;
    if (!alongX || aside) y += stepY;
  }
}

void Picture::RasteriseDot(Pixel at, int width, Colour colour) const {
  if (width <= 1) {
    FillSpan(at.y, at.x, at.x + 1, colour);
    return;
  }
  const bool even = width % 2 == 0;
  const int top = -(width / 2), bottom = even ? width / 2 - 1 : width / 2;
  for (int row = top; row <= bottom; ++row) {
    const int half = width <= kWidestStoredDot ? StoredHalfSpans(width)[static_cast<std::size_t>(row - top)]
                                               : HalfSpan(width, row, even ? 0.5 : 0);
    if (half > 0) FillSpan(at.y + row, at.x - half + (even ? 0 : 1), at.x + half, colour);
  }
}

// Sets the pixels left .. right - 1 of a row, as far as they lie in the picture.
void Picture::FillSpan(int y, int left, int right, Colour colour) const {
  if (y < 0 || y >= height_) return;
  left = std::max(left, 0);
  right = std::min(right, width_);
  if (left >= right) return;
  const auto row = pixels_.begin() + static_cast<std::ptrdiff_t>(y) * width_;
  std::fill(row + left, row + right, colour);
}

}  // namespace pelorium

// Recording and rasterising of the drawing calls.
#include "graphics/picture.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/fault.h"

namespace pelorium {

namespace {

constexpr std::size_t kMaxPendingCalls = 1 << 20;

int ToPixelNumber(double user, int pixels, double scale) {
  const double at = user * pixels / scale;
  if (!(at > -kFarAway)) return -kFarAway;  // a NaN too
  if (at >= kFarAway) return kFarAway;
  const int truncated = static_cast<int>(at);
  return truncated > at ? truncated - 1 : truncated;
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
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  Clear();
}

void Picture::Clear() {
  calls_.clear();
  cleared_ = true;
  source_ = nullptr;
  ground_ = backColour;
  groundBackdrop_ = backdrop_;
  Changed();
}

void Picture::Changed() {
  static std::uint64_t changes = 0;
  revision_ = ++changes;
}

std::optional<Colour> Picture::PlainColour() const {
  const bool isPlain = cleared_ && !source_ && calls_.empty() && !groundBackdrop_;
  return isPlain ? std::optional(ground_) : std::nullopt;
}

void Picture::TakeFrom(std::shared_ptr<PixelSource> source) {
  Clear();
  source_ = std::move(source);
}

void Picture::Line(float x0, float y0, float x1, float y1, Colour colour) {
  Record({ToPixel(x0, y0), ToPixel(x1, y1), colour, StoredWidth(), false});
}

void Picture::Dot(float x, float y, Colour colour) { DotAt(ToPixel(x, y), colour); }

void Picture::LineBetween(Pixel from, Pixel to) { Record({from, to, foreColour, StoredWidth(), false}); }

void Picture::DotAt(Pixel at, Colour colour) { Record({at, at, colour, StoredWidth(), true}); }

void Picture::Text(Pixel at, std::string_view text, Colour colour, TextSize size) {
  for (const char letter : text) {
    if (IsContinuation(letter)) continue;
    for (const InkRun& run : InkOf(letter, size)) {
      const Pixel from = {at.x + run.left, at.y + run.row};
      Record({from, {from.x + run.count, from.y}, colour, 1, false});
    }
    at.x += CellOf(size).width;
  }
}

std::int16_t Picture::StoredWidth() const {
  return static_cast<std::int16_t>(std::clamp<int>(drawWidth, 1, std::numeric_limits<std::int16_t>::max()));
}

void Picture::Record(const Call& call) {
  if (calls_.size() >= kMaxPendingCalls) Rasterise();
  calls_.push_back(call);
  Changed();
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
  if (pixels.size() < pixels_.size()) {
    Rasterise();
  } else {  // all that was there is replaced
    calls_.clear();
    cleared_ = false;
    source_ = nullptr;
  }
  std::copy_n(pixels.begin(), std::min(pixels.size(), pixels_.size()), pixels_.begin());
  Changed();
}

void Picture::TakePixels(int width, int height, std::vector<std::uint32_t> pixels) {
  Clear();
  cleared_ = false;
  width_ = std::clamp(width, 1, kMaxSide);
  height_ = std::clamp(height, 1, kMaxSide);
  pixels_ = std::move(pixels);
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
}

PixelGrid Picture::Edit() {
  Rasterise();
  Changed();
  return {pixels_.data(), width_, height_};
}

void Picture::FillGround() const {
  std::fill(pixels_.begin(), pixels_.end(), ground_);
  if (!groundBackdrop_) return;
  const Backdrop& image = *groundBackdrop_;
  const int left = std::max(0, image.left), right = std::min(width_, image.left + image.width);
  if (left >= right) return;
  for (int y = std::max(0, image.top); y < std::min(height_, image.top + image.height); ++y) {
    const std::size_t from = static_cast<std::size_t>(y - image.top) * static_cast<std::size_t>(image.width) +
                             static_cast<std::size_t>(left - image.left);
    const std::size_t to =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(left);
    std::copy_n(image.pixels->begin() + static_cast<std::ptrdiff_t>(from), right - left,
                pixels_.begin() + static_cast<std::ptrdiff_t>(to));
  }
}

void Picture::Rasterise() const {
  if (cleared_ && !source_) FillGround();
  cleared_ = false;
  if (source_) std::exchange(source_, nullptr)->Fill(pixels_.data(), width_, height_);
  const PixelGrid grid{pixels_.data(), width_, height_};
  for (const Call& call : calls_) {
    if (call.isDot) {
      RasteriseDot(grid, call.from, call.width, call.colour);
    } else {
      RasteriseLine(grid, call.from, call.to, call.width, call.colour);
    }
  }
  calls_.clear();
}

}  // namespace pelorium

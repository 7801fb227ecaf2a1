// The four quarters, one after the other: what one leaves at its edges the next one takes over.
#include "imaging/tiling_plasma.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kHighest = 250;  // of what is moved
constexpr double kProgressAReturn = 8.7e-4;
constexpr int kReturnsBetweenTells = 4096;

// Runs on numbers of its own, one more than twice the half size each way: the last column and row of an image
// of even sides lie outside it. 0 is what is not set yet; no value is.
class Clouds {
 public:
  Clouds(int halfWidth, int halfHeight, double level, RandomSeries& random,
         const std::function<void(double)>& onProgress)
      : width_(2 * halfWidth + 1),
        level_(level),
        random_(random),
        onProgress_(onProgress),
        values_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(2 * halfHeight + 1)) {}

  std::int32_t& At(int x, int y) {
    return values_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
  }
  const std::int32_t* Row(int y) const { return values_.data() + static_cast<std::ptrdiff_t>(y) * width_; }

  // In single precision: the topmost draws round up to 256.
  void SetCorner(int x, int y) {
    At(x, y) = static_cast<std::int32_t>(RoundHalfEven(static_cast<float>(random_.Next()) * 255.0F + 1.0F));
  }

  void Divide(int x1, int y1, int x2, int y2) {
    if (x2 - x1 < 2 && y2 - y1 < 2) return;
    ++depth_;
    const int xm = (x1 + x2) / 2, ym = (y1 + y2) / 2;
    int sum = Between(x1, y1, xm, y1, x2, y1);
    sum += Between(x2, y1, x2, ym, x2, y2);
    sum += Between(x1, y2, xm, y2, x2, y2);
    sum += Between(x1, y1, x1, ym, x1, y2);
    if (std::int32_t& centre = At(xm, ym); centre == 0) centre = (sum + 2) / 4;
    Divide(x1, y1, xm, ym);
    Divide(xm, y1, x2, ym);
    Divide(xm, ym, x2, y2);
    Divide(x1, ym, xm, y2);
    --depth_;
    if (++returns_ % kReturnsBetweenTells == 0) TellProgress();
  }

  void TellProgress() const {
    if (onProgress_) onProgress_(returns_ * kProgressAReturn);
  }

 private:
  int Between(int x1, int y1, int xm, int ym, int x2, int y2) {
    std::int32_t& value = At(xm, ym);
    if (value == 0) value = Moved((At(x1, y1) + At(x2, y2) + 1) / 2);
    return value;
  }

  // Down when two draws come to less than 1 together: as often as up.
  std::int32_t Moved(std::int32_t mean) {
    std::int64_t by = ToInteger<std::int32_t>(random_.Next() * level_) / depth_;
    const double first = random_.Next();
    if (first + random_.Next() < 1) by = -by;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(mean + by, 1, kHighest));
  }

  int width_;
  double level_;
  RandomSeries& random_;
  const std::function<void(double)>& onProgress_;
  std::vector<std::int32_t> values_;
  int depth_ = 0;
  int returns_ = 0;
};

}  // namespace

void PaintTilingPlasma(Picture& picture, double level, RandomSeries& random,
                       const std::function<void(double)>& onProgress) {
  picture.backColour = 0;
  picture.Clear();
  const PixelGrid grid = picture.Edit();
  const int w = grid.width / 2, h = grid.height / 2;
  Clouds clouds(w, h, level, random, onProgress);
  for (const int y : {0, h}) {
    for (const int x : {0, w}) clouds.SetCorner(x, y);
  }
  clouds.Divide(0, 0, w, h);
  for (int y = 0; y <= h; ++y) clouds.At(2 * w, y) = clouds.At(0, y);
  clouds.Divide(w, 0, 2 * w, h);
  for (int x = 0; x <= 2 * w; ++x) clouds.At(x, 2 * h) = clouds.At(x, 0);
  clouds.Divide(w, h, 2 * w, 2 * h);
  for (int y = h; y <= 2 * h; ++y) clouds.At(0, y) = clouds.At(2 * w, y);
  clouds.Divide(0, h, w, 2 * h);
  clouds.TellProgress();
  for (int y = 0; y < std::min(grid.height, 2 * h + 1); ++y) {
    std::copy_n(clouds.Row(y), std::min(grid.width, 2 * w + 1), grid.At({0, y}));
  }
}

}  // namespace pelorium

// What all effects share: reading the Foreground column by column, grays, stamps, progress.
#pragma once

#include <optional>
#include <vector>

#include "imaging/canvas.h"
#include "imaging/image_effects.h"

namespace pelorium {

// The effects walk down the columns, a picture lies in rows: some columns at a time are turned, so that each
// line of the cache is fetched once. Behind the last pixel of a column, and in a column outside the picture,
// lies white.
class ColumnReader {
 public:
  explicit ColumnReader(const Picture& picture)
      : pixels_(picture.Pixels().data()),
        width_(picture.PixelWidth()),
        height_(picture.PixelHeight()),
        turned_(kColumns * Length(), kWhite),
        outside_(Length(), kWhite) {}

  // Rows 0..height of column x.
  const Colour* Column(int x) {
    if (x < 0 || x >= width_) return outside_.data();
    if (x < first_ || x >= first_ + kColumns) Turn(x);
    return turned_.data() + static_cast<std::size_t>(x - first_) * Length();
  }

 private:
  static constexpr int kColumns = 16;  // a line of the cache

  std::size_t Length() const { return static_cast<std::size_t>(height_) + 1; }

  void Turn(int x) {
    first_ = x - x % kColumns;
    const int columns = std::min(kColumns, width_ - first_);
    for (int y = 0; y < height_; ++y) {
      const std::uint32_t* row = pixels_ + static_cast<std::ptrdiff_t>(y) * width_ + first_;
      for (int c = 0; c < columns; ++c) {
        turned_[static_cast<std::size_t>(c) * Length() + static_cast<std::size_t>(y)] = row[c];
      }
    }
  }

  const std::uint32_t* pixels_;
  int width_, height_, first_ = -kColumns;
  std::vector<Colour> turned_, outside_;
};

inline int MeanGray(Colour c) { return (Red(c) + Green(c) + Blue(c)) / 3; }

// The gray of the colour-named effects counts green twice and leaves blue out.
inline int RedGreenGray(Colour c) { return (Red(c) + 2 * Green(c)) / 3; }

// A value as whole levels of `divisor`, and as the value that stands for that level.
struct Level {
  double number, value;
};
Level Quantise(int value, double divisor);

// The whole part, downwards, of a draw times an amount.
inline int Drawn(RandomSeries& random, int amount) {
  const double value = random.Next() * amount;
  const int whole = static_cast<int>(value);
  return whole > value ? whole - 1 : whole;
}

// Stamps of one run; circles are made once for each size.
class Stamper {
 public:
  explicit Stamper(Picture& target) : target_(target), grid_(target.Edit()) {}

  void Dot(Pixel at) {
    if (target_.drawWidth <= 1) return WritePixel(grid_, at, target_.foreColour);  // the most frequent one
    RasteriseDot(grid_, at, target_.drawWidth, target_.foreColour);
  }
  void Box(Pixel at, int side) { FillSquare(grid_, at, side, target_.foreColour); }
  void Circle(Pixel at, int radius);
  void Write(Pixel at, Colour colour) { WritePixel(grid_, at, colour); }

 private:
  Picture& target_;
  PixelGrid grid_;
  std::optional<CircleStamp> circle_;
};

inline int StepOf(int step) { return std::max(step, 1); }

void StartProgress(const EffectRun& run);
inline void TellColumn(const EffectRun& run, int x) {
  if (run.onColumn) run.onColumn(x);
}

// An effect that used a draw width of its own leaves both images with the chosen one.
void RestoreWidths(EffectRun& run);

}  // namespace pelorium

// The halving, its colours, and the mirroring.
#include "imaging/corner_plasma.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"
#include "imaging/canvas.h"

namespace pelorium {

namespace {

constexpr int kRectanglesBetweenShows = 1000;
constexpr std::uint32_t kDone = 1U << 24;  // above the colour

// Means of two and of four levels, half to even.
constexpr int HalfOf(int sum) { return (sum + (sum >> 1 & 1)) >> 1; }
constexpr int QuarterOf(int sum) { return (sum + 1 + (sum >> 2 & 1)) >> 2; }

CornerPlasma::Levels Split(std::uint32_t colour) { return {Red(colour), Green(colour), Blue(colour)}; }

// Half to even like all places: rectangles of odd sides lean one way or the other.
int Middle(int a, int b) { return HalfOf(a + b); }

class Halving {
 public:
  Halving(Picture& picture, const CornerPlasma& plasma, RandomSeries& random,
          const std::function<void()>& onRefresh)
      : picture_(picture),
        plasma_(plasma),
        random_(random),
        onRefresh_(onRefresh),
        grid_(picture.Edit()),
        width_(std::max(plasma.width, 0)),
        height_(std::max(plasma.height, 0)),
        stored_(static_cast<std::size_t>(width_ + 1) * static_cast<std::size_t>(height_ + 1)),
        anyMoved_(std::any_of(plasma.channels.begin(), plasma.channels.end(),
                              [](const auto& channel) { return channel.isMoved; })) {}

  void Run() {
    const int x2 = plasma_.tiles ? width_ / 2 : width_, y2 = plasma_.tiles ? height_ / 2 : height_;
    for (std::size_t corner = 0; corner < plasma_.corners.size(); ++corner) {
      const auto& [red, green, blue] = plasma_.corners[corner];
      Set(corner % 2 == 0 ? 0 : x2, corner < 2 ? 0 : y2, ColourOf(red, green, blue));
    }
    Divide(0, 0, x2, y2);
    if (plasma_.tiles) Mirror(x2, y2);
  }

 private:
  std::uint32_t& At(int x, int y) {
    return stored_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_ + 1) +
                   static_cast<std::size_t>(x)];
  }
  bool IsDone(int x, int y) { return At(x, y) >= kDone; }
  void Set(int x, int y, Colour colour) {
    At(x, y) = colour | kDone;
    WritePixel(grid_, {x, y}, colour);
  }

  void Divide(int x1, int y1, int x2, int y2) {
    if (x2 - x1 < 2 && y2 - y1 < 2) return;
    if (++rectangles_ % kRectanglesBetweenShows == 0 && onRefresh_) {
      grid_ = picture_.Edit();  // tells that the pixels changed
      onRefresh_();
    }
    const int xm = Middle(x1, x2), ym = Middle(y1, y2);
    const int reach = ToInteger<std::int32_t>(((x2 - x1) + (y2 - y1)) * plasma_.size);
    const std::uint32_t a = At(x1, y1), b = At(x2, y1), c = At(x1, y2), d = At(x2, y2);
    SetBetween(xm, y1, a, b, reach);
    SetBetween(x2, ym, b, d, reach);
    SetBetween(xm, y2, c, d, reach);
    SetBetween(x1, ym, a, c, reach);
    if (!IsDone(xm, ym)) {
      const CornerPlasma::Levels la = Split(a), lb = Split(b), lc = Split(c), ld = Split(d);
      CornerPlasma::Levels mean;
      for (std::size_t i = 0; i < mean.size(); ++i) mean[i] = QuarterOf(la[i] + lb[i] + lc[i] + ld[i]);
      Set(xm, ym, Moved(mean, reach));
    }
    Divide(x1, y1, xm, ym);
    Divide(xm, y1, x2, ym);
    Divide(xm, ym, x2, y2);
    Divide(x1, ym, xm, y2);
  }

  void SetBetween(int x, int y, std::uint32_t from, std::uint32_t to, int reach) {
    if (IsDone(x, y)) return;
    const CornerPlasma::Levels first = Split(from), second = Split(to);
    CornerPlasma::Levels mean;
    for (std::size_t i = 0; i < mean.size(); ++i) mean[i] = HalfOf(first[i] + second[i]);
    Set(x, y, Moved(mean, reach));
  }

  Colour Moved(const CornerPlasma::Levels& mean, int reach) {
    std::int64_t move = plasma_.movesAlike && anyMoved_ ? Draw(reach) : 0;
    CornerPlasma::Levels levels;
    for (std::size_t i = 0; i < levels.size(); ++i) {
      const CornerPlasma::Channel& channel = plasma_.channels[i];
      if (channel.isMoved && !plasma_.movesAlike) move = Draw(reach);
      std::int64_t level = mean[i] + (channel.isMoved ? move : 0);
      if (level < channel.least) level = channel.least;
      if (level > channel.most) level = channel.most;  // counts where the range is upside down
      levels[i] = static_cast<int>(std::clamp<std::int64_t>(level, 0, 255));
    }
    return Rgb(levels[0], levels[1], levels[2]);
  }

  // One draw for the amount and two for the sign: down when they come to less than 1 together.
  std::int64_t Draw(int reach) {
    const std::int64_t move =
        ToInteger<std::int32_t>(random_.Next() * reach * plasma_.roughness * plasma_.scale);
    const double first = random_.Next();
    return first + random_.Next() < 1 ? -move : move;
  }

  void Mirror(int x2, int y2) {
    for (int y = 0; y <= height_; ++y) {
      for (int x = 0; x <= width_; ++x) {
        if (x <= x2 && y <= y2) continue;
        const std::uint32_t from = At(x <= x2 ? x : width_ - x, y <= y2 ? y : height_ - y);
        WritePixel(grid_, {x, y}, from & (kDone - 1));
      }
    }
  }

  Picture& picture_;
  const CornerPlasma& plasma_;
  RandomSeries& random_;
  const std::function<void()>& onRefresh_;
  PixelGrid grid_;
  const int width_, height_;
  std::vector<std::uint32_t> stored_;
  const bool anyMoved_;
  int rectangles_ = 0;
};

}  // namespace

void PaintCornerPlasma(Picture& picture, const CornerPlasma& plasma, RandomSeries& random,
                       const std::function<void()>& onRefresh) {
  Halving(picture, plasma, random, onRefresh).Run();
}

}  // namespace pelorium

// The noise at a place, and the quick walk over a surface. A column has one x and one z, so that in each cell
// of the grid that it crosses the eight gradients are straight lines in y: worked out once a cell, and then
// run over its rows in the order of the plain procedure's operations, which gives the same bytes.
#include "imaging/perlin_noise.h"

#include <bit>
#include <cmath>
#include <vector>

#include "base/numbers.h"

namespace pelorium {

namespace {

constexpr int kPermutation[256] = {
    91,  160, 137, 91,  90,  15,  131, 13,  201, 95,  96,  53,  194, 233, 7,   225, 140, 36,  103, 30,
    69,  142, 8,   99,  37,  240, 21,  10,  23,  190, 6,   148, 247, 120, 234, 75,  0,   26,  197, 62,
    94,  252, 219, 203, 117, 35,  11,  32,  57,  177, 33,  88,  237, 149, 56,  87,  174, 20,  125, 136,
    171, 168, 68,  175, 74,  165, 71,  134, 139, 48,  27,  166, 77,  146, 158, 231, 83,  111, 229, 122,
    60,  211, 133, 230, 220, 105, 92,  41,  55,  46,  245, 40,  244, 102, 143, 54,  65,  25,  63,  161,
    1,   216, 80,  73,  209, 76,  132, 187, 208, 89,  18,  169, 200, 196, 135, 130, 116, 188, 159, 86,
    164, 100, 109, 198, 173, 186, 3,   64,  52,  217, 226, 250, 124, 123, 5,   202, 38,  147, 118, 126,
    255, 82,  85,  212, 207, 206, 59,  227, 47,  16,  58,  17,  182, 189, 28,  42,  223, 183, 170, 213,
    119, 248, 152, 2,   44,  154, 163, 70,  221, 153, 101, 155, 167, 43,  172, 9,   129, 22,  39,  253,
    19,  98,  108, 110, 79,  113, 224, 232, 178, 185, 112, 104, 218, 246, 97,  228, 251, 34,  242, 193,
    238, 210, 144, 12,  191, 179, 162, 241, 81,  51,  145, 235, 249, 14,  239, 107, 49,  192, 214, 31,
    181, 199, 106, 157, 184, 84,  204, 176, 115, 121, 50,  45,  127, 4,   150, 254, 138, 236, 205, 93,
    222, 114, 67,  29,  24,  72,  243, 141, 128, 195, 78,  66,  215, 61,  156, 180};

constexpr double kFirstZ = 0.01, kOctaveZ = 0.03;  // the octaves double theirs before the first one

// The cell of a place along one axis, what is left of it, and how far that blends over to the next cell.
struct Place {
  int cell;
  double rest, blend;
};

Place PlaceOf(double at) {
  const double whole = std::floor(at);
  return {ToInteger<std::int32_t>(whole) & 255, at - whole, cPerlin3D::fade(at - whole)};
}

// A gradient along a column: across * y + fixed, with across -1, 0 or 1. The sums are those of `grad`.
struct ColumnGradient {
  double across, fixed;
};

ColumnGradient GradientOf(int hash, double x, double z) {
  const int h = hash & 15;
  const double first = (h & 1) == 0 ? 1 : -1, second = (h & 2) == 0 ? 1 : -1;
  if (h < 4) return {second, first * x};  // y is the second part
  if (h < 8) return {0, first * x + second * z};
  if (h == 12 || h == 13) return {0, first * x + second * x};
  return {first, second * z};  // y is the first part
}

// One octave: where the rows lie, the same for all columns, and the column at hand.
class Octave {
 public:
  Octave(const cPerlin3D& noise, const std::vector<double>& rows, double factor, double z)
      : noise_(noise), z_(PlaceOf(z)) {
    for (const double y : rows) {
      const Place place = PlaceOf(y * factor);
      if (runs_.empty() || runs_.back().cell != place.cell) runs_.push_back({place.cell, 0});
      ++runs_.back().count;
      rest_.push_back(place.rest);
      blend_.push_back(place.blend);
    }
  }

  // Noise at x for each row, times `factor`.
  void Column(double x, double factor, double* values) const {
    const Place across = PlaceOf(x);
    std::size_t row = 0;
    for (const Run& run : runs_) {
      Cell(across, run, factor, rest_.data() + row, blend_.data() + row, values + row);
      row += run.count;
    }
  }

 private:
  struct Run {
    int cell;
    std::size_t count;
  };

  void Cell(const Place& x, const Run& run, double factor, const double* rest, const double* blend,
            double* values) const {
    const auto& p = noise_.p;
    const auto at = [&p](int i) { return p[static_cast<std::size_t>(i)]; };
    const int a = at(x.cell) + run.cell, b = at(x.cell + 1) + run.cell;
    const int aa = at(a) + z_.cell, ab = at(a + 1) + z_.cell, ba = at(b) + z_.cell, bb = at(b + 1) + z_.cell;
    const double nextX = x.rest - 1, nextZ = z_.rest - 1, u = x.blend, w = z_.blend;
    const ColumnGradient g000 = GradientOf(at(aa), x.rest, z_.rest),
                         g100 = GradientOf(at(ba), nextX, z_.rest),
                         g010 = GradientOf(at(ab), x.rest, z_.rest),
                         g110 = GradientOf(at(bb), nextX, z_.rest),
                         g001 = GradientOf(at(aa + 1), x.rest, nextZ),
                         g101 = GradientOf(at(ba + 1), nextX, nextZ),
                         g011 = GradientOf(at(ab + 1), x.rest, nextZ),
                         g111 = GradientOf(at(bb + 1), nextX, nextZ);
    const auto between = [u](const ColumnGradient& left, const ColumnGradient& right, double y) {
      return cPerlin3D::lerp(u, left.across * y + left.fixed, right.across * y + right.fixed);
    };
    for (std::size_t i = 0; i < run.count; ++i) {
      const double y = rest[i], nextY = y - 1, v = blend[i];
      const double near = cPerlin3D::lerp(v, between(g000, g100, y), between(g010, g110, nextY));
      const double far = cPerlin3D::lerp(v, between(g001, g101, y), between(g011, g111, nextY));
      values[i] = cPerlin3D::lerp(w, near, far) * factor;
    }
  }

  const cPerlin3D& noise_;
  Place z_;
  std::vector<Run> runs_;  // of rows in the same cell
  std::vector<double> rest_, blend_;
};

// Half to even for 0..255: in doubles of this size the last bit counts ones.
std::uint8_t ByteOf(double level) {
  constexpr double kOnesInLastBit = 0x1p52;
  return static_cast<std::uint8_t>(std::bit_cast<std::uint64_t>(level + kOnesInLastBit));
}

double HeldLevel(double level) {
  const double held = level > 255 ? 255 : level;
  return held < 0 ? 0 : held;
}

// The octaves of a picture and the sums of one column.
class Rendering {
 public:
  Rendering(const PerlinSettings& settings, int height) : settings_(settings) {
    const double step = 1 / (height / (2 * settings.extent));
    std::vector<double> rows;
    double y = -settings.extent;
    for (int row = 0; row < height; ++row, y += step) rows.push_back(y);
    octaves_.emplace_back(noise_, rows, 1, kFirstZ);
    for (int freq = 2; freq / 2 < settings.octaveLimit && settings.octaveLimit > 1; freq *= 2) {
      octaves_.emplace_back(noise_, rows, freq, kOctaveZ * freq);
    }
    sums_.resize(rows.size());
    parts_.resize(rows.size());
  }

  // Doubling is exact, so that the place of an octave needs no running copy.
  const std::vector<double>& Column(double x) {
    octaves_[0].Column(x, 1, sums_.data());
    if (settings_.useAbsolute) {
      for (double& sum : sums_) sum = std::fabs(sum);
    }
    double freq = 1;
    for (std::size_t octave = 1; octave < octaves_.size(); ++octave) {
      freq *= 2;
      octaves_[octave].Column(2 * x, 1 / freq, parts_.data());
      x = settings_.streaks ? x + freq : 2 * x;
      for (std::size_t row = 0; row < sums_.size(); ++row) {
        sums_[row] += settings_.useAbsolute ? std::fabs(parts_[row]) : parts_[row];
      }
    }
    return sums_;
  }

 private:
  const PerlinSettings& settings_;
  const cPerlin3D noise_;
  std::vector<Octave> octaves_;
  std::vector<double> sums_, parts_;
};

}  // namespace

cPerlin3D::cPerlin3D() {
  for (std::size_t i = 0; i < p.size(); ++i) p[i] = kPermutation[i % 256];
}

double cPerlin3D::grad(int hash, double x, double y, double z) {
  const int h = hash & 15;
  const bool isTwice = h == 12 || h == 13;
  const double u = h < 8 || isTwice ? x : y;
  const double v = h < 4 ? y : isTwice ? x : z;
  return ((h & 1) == 0 ? u : -u) + ((h & 2) == 0 ? v : -v);
}

double cPerlin3D::Noise(double x, double y, double z) const {
  const Place X = PlaceOf(x), Y = PlaceOf(y), Z = PlaceOf(z);
  const auto at = [this](int i) { return p[static_cast<std::size_t>(i)]; };
  const int a = at(X.cell) + Y.cell, b = at(X.cell + 1) + Y.cell;
  const int aa = at(a) + Z.cell, ab = at(a + 1) + Z.cell, ba = at(b) + Z.cell, bb = at(b + 1) + Z.cell;
  const auto plane = [&](int up, double z0) {
    return lerp(
        Y.blend,
        lerp(X.blend, grad(at(aa + up), X.rest, Y.rest, z0), grad(at(ba + up), X.rest - 1, Y.rest, z0)),
        lerp(X.blend, grad(at(ab + up), X.rest, Y.rest - 1, z0),
             grad(at(bb + up), X.rest - 1, Y.rest - 1, z0)));
  };
  return lerp(Z.blend, plane(0, Z.rest), plane(1, Z.rest - 1));
}

void RenderPerlin(cDIBSection& surface, const PerlinSettings& settings, RandomSeries& random,
                  const std::function<void(int)>& onColumn) {
  if (surface.Width() < 1) return;
  Rendering rendering(settings, surface.Height());
  const double step = 1 / (surface.Width() / (2 * settings.extent)), level = settings.level;
  std::vector<std::uint8_t> grays(static_cast<std::size_t>(surface.Height()));
  double x = -settings.extent;
  for (int column = 0; column < surface.Width(); ++column, x += step) {
    const std::vector<double>& sums = rendering.Column(x);
    for (std::size_t row = 0; row < sums.size(); ++row) {
      if (settings.useAbsolute) {
        grays[row] = ByteOf((sums[row] > 1 ? 1 : sums[row]) * 255);
      } else {
        const double noise = random.Next() * settings.noiseLevel;
        grays[row] = ByteOf(HeldLevel(sums[row] * level + level + (noise == 0 ? 0 : std::floor(noise))));
      }
    }
    std::uint8_t* pixel = surface.DIBSectionBitsPtr() + column * cDIBSection::kBytesPerPixel;
    for (const std::uint8_t gray : grays) {
      pixel[0] = pixel[1] = pixel[2] = gray;
      pixel += surface.BytesPerScanLine();
    }
    if (onColumn) onColumn(column);
  }
}

}  // namespace pelorium

// Gray, black and white, lighter, darker, one colour. What depends on few values is looked up in a table.
#include "imaging/tone_filters.h"

#include <array>
#include <cmath>
#include <memory>
#include <vector>

#include "imaging/hls.h"

namespace pelorium {

namespace {

constexpr int kBytes = cDIBSection::kBytesPerPixel;

std::uint8_t Held(int value) { return static_cast<std::uint8_t>(std::clamp(value, 0, 255)); }

void SetGray(std::uint8_t* pixel, std::uint8_t gray) { pixel[0] = pixel[1] = pixel[2] = gray; }

}  // namespace

void GrayScale(cDIBSection& surface, const ValueRange& range, const ImageEvents& events) {
  constexpr std::int16_t kStays = -1;
  std::array<std::int16_t, 3 * 255 + 1> grayOfSum;
  for (int sum = 0; sum < static_cast<int>(grayOfSum.size()); ++sum) {
    const int gray = Held((sum + 1) / 3 + range.offset);  // thirds have no ties: the nearest whole number
    grayOfSum[static_cast<std::size_t>(sum)] = range.Holds(gray) ? static_cast<std::int16_t>(gray) : kStays;
  }
  ForStripRows(events, surface, [&](std::uint8_t* pixel, int count) {
    for (std::uint8_t* const end = pixel + count; pixel != end; pixel += kBytes) {
      const std::int16_t gray = grayOfSum[static_cast<std::size_t>(pixel[0] + pixel[1] + pixel[2])];
      if (gray != kStays) SetGray(pixel, static_cast<std::uint8_t>(gray));
    }
  });
}

// The errors are told column by column: a pixel takes them from the left below, from the left and from below
// before it is decided, and from the right below afterwards. In this order it can be walked row by row.
void BlackAndWhite(cDIBSection& source, cDIBSection& working, const ValueRange& range,
                   const ImageEvents& events) {
  GrayScale(source, range, events);
  const int width = source.Width();
  std::vector<int> below(static_cast<std::size_t>(width) + 1),
      errors(below.size());  // one past the last column
  for (int y = 0; y < source.Height(); ++y) {
    std::uint8_t *pixel = source.Row(y), *decided = working.Row(y);
    for (int x = 0; x < width; ++x, pixel += kBytes, decided += kBytes) {
      const auto at = static_cast<std::size_t>(x);
      const bool takes = x >= 1 && x < width - 1, takesFromBelow = takes && y > 0;
      if (takesFromBelow) SetGray(pixel, Held(pixel[0] + below[at - 1] / 16));
      if (takes) SetGray(pixel, Held(pixel[0] + errors[at - 1] * 7 / 16));
      if (takesFromBelow) SetGray(pixel, Held(pixel[0] + below[at] * 5 / 16));
      const int value = pixel[0];
      const bool isWhite = value > 128;
      SetGray(decided, isWhite ? 255 : 0);
      errors[at] = isWhite ? 127 - value : value > 16 ? value : 0;
      if (takesFromBelow) SetGray(pixel, Held(value + below[at + 1] * 3 / 16));
    }
    below.swap(errors);
  }
}

void Fade(cDIBSection& surface, int amount, const ImageEvents& events) {
  std::array<std::uint8_t, 256> faded;
  for (std::int64_t byte = 0; byte < 256; ++byte) {
    faded[static_cast<std::size_t>(byte)] =
        static_cast<std::uint8_t>(std::clamp<std::int64_t>(byte * amount / 255, 0, 255));
  }
  ForStripRows(events, surface, [&](std::uint8_t* bytes, int count) {
    for (int k = 0; k < count; ++k) bytes[k] = faded[bytes[k]];
  });
}

namespace {

// Four pixels at a time, a channel in each.
constexpr std::size_t kLanes = 4;
using Reals = float __attribute__((vector_size(16)));

struct Planes {
  Reals red, green, blue;
};

// HLSToRGB(RGBToHLS(colour) with more luminance), the same to the last bit, without a branch. Channels of
// 0..1 come in, levels rounded half to even come out.
Planes Lightened(const Planes& in, float factor) {
  const Reals zero = {}, one = zero + 1;
  const Reals larger = in.red > in.green ? in.red : in.green, smaller = in.red > in.green ? in.green : in.red;
  const Reals max0 = larger > in.blue ? larger : in.blue, min0 = smaller > in.blue ? in.blue : smaller;
  const Reals d0 = max0 - min0, luminance0 = (max0 + min0) / 2;
  const Reals range = luminance0 > 0.5F ? 2 - max0 - min0 : max0 + min0;
  const Reals saturation = d0 == 0 ? zero : d0 / (d0 == 0 ? one : range);
  const Reals side = in.red == max0     ? in.green - in.blue
                     : in.green == max0 ? in.blue - in.red
                                        : in.red - in.green;
  const Reals sector = in.red == max0 ? zero : in.green == max0 ? zero + 2 : zero + 4;
  const Reals hue = sector + side / (d0 == 0 ? one : d0);

  const Reals raised = factor * luminance0, luminance = raised > 1 ? one : raised;
  const Reals dark = (1 - saturation) * luminance, light = luminance - (1 - luminance) * saturation;
  const Reals min = luminance > 0.5F ? light : dark;
  const Reals max = 2 * luminance - min, d = max - min;
  const Reals base = hue < 1 ? zero : hue < 3 ? zero + 2 : zero + 4;
  const Reals turn = hue - base, mid = min + d * (turn < 0 ? -turn : turn);

  // Added and taken away again it leaves a number below 2^22 rounded half to even.
  constexpr float kRounder = 12582912;
  const Reals high = (max * 255 + kRounder) - kRounder, low = (min * 255 + kRounder) - kRounder;
  const Reals middle = (mid * 255 + kRounder) - kRounder;
  const Reals next = turn < 0 ? low : middle,
              last = turn < 0 ? middle : low;  // the channels behind the highest
  return {base == 0   ? high
          : base == 2 ? last
                      : next,
          base == 0   ? next
          : base == 2 ? high
                      : last,
          base == 0   ? last
          : base == 2 ? next
                      : high};
}

}  // namespace

// Levels go in and come out by way of rows of a strip: a vector that is read right behind the writes of its
// four parts would have to wait for them.
void Lighten(cDIBSection& surface, int percent, const ImageEvents& events) {
  constexpr std::size_t kVectors = kStripColumns / kLanes;
  std::array<float, 256> levels;
  for (std::size_t i = 0; i < levels.size(); ++i) levels[i] = static_cast<float>(i) / 255;
  const float factor = std::max(static_cast<float>(percent) / 100 + 1, 0.0F);  // below 0 all is black too
  std::array<Planes, kVectors> strip{};
  ForStripRows(events, surface, [&](std::uint8_t* bytes, int count) {
    const auto pixels = static_cast<std::size_t>(count / kBytes);
    for (std::size_t k = 0; k < pixels; ++k) {
      Planes& planes = strip[k / kLanes];
      planes.blue[k % kLanes] = levels[bytes[3 * k]];
      planes.green[k % kLanes] = levels[bytes[3 * k + 1]];
      planes.red[k % kLanes] = levels[bytes[3 * k + 2]];
    }
    for (Planes& planes : strip) planes = Lightened(planes, factor);
    for (std::size_t k = 0; k < pixels; ++k) {
      const Planes& planes = strip[k / kLanes];
      bytes[3 * k] = static_cast<std::uint8_t>(planes.blue[k % kLanes]);
      bytes[3 * k + 1] = static_cast<std::uint8_t>(planes.green[k % kLanes]);
      bytes[3 * k + 2] = static_cast<std::uint8_t>(planes.red[k % kLanes]);
    }
  });
}

// With hue and saturation given, a colour depends on the luminance alone, and that on the highest and the
// lowest channel: both are looked up.
void Colourise(cDIBSection& surface, float hue, float saturation, const ImageEvents& events) {
  struct Bgr {
    std::uint8_t bytes[kBytes];
  };
  std::vector<Bgr> colours(256 * 256);
  for (int max = 0; max < 256; ++max) {
    for (int min = 0; min <= max; ++min) {
      const RgbLevels colour = HLSToRGB({hue, saturation, RGBToHLS(max, min, min).luminance});
      colours[static_cast<std::size_t>(max * 256 + min)] = {
          {Held(colour.blue), Held(colour.green), Held(colour.red)}};
    }
  }
  ForStripRows(events, surface, [&](std::uint8_t* pixel, int count) {
    for (std::uint8_t* const end = pixel + count; pixel != end; pixel += kBytes) {
      const auto [min, max] = std::minmax({pixel[0], pixel[1], pixel[2]});
      const Bgr& colour = colours[static_cast<std::size_t>(max * 256 + min)];
      pixel[0] = colour.bytes[0], pixel[1] = colour.bytes[1], pixel[2] = colour.bytes[2];
    }
  });
}

}  // namespace pelorium

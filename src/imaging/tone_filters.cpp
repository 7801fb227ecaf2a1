// Gray, black and white, lighter, darker, one colour. What depends on few values is looked up in a table.
#include "imaging/tone_filters.h"

#include <array>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "graphics/bgr_rows.h"
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

// Four pixels at a time.
constexpr std::size_t kLanes = 4;
using Reals = float __attribute__((vector_size(16)));
using Ints = std::int32_t __attribute__((vector_size(16)));

// The processor knows the larger and the smaller of two vectors, but no choice by a condition.
inline Reals Larger(Reals a, Reals b) { return a > b ? a : b; }
inline Reals Smaller(Reals a, Reals b) { return a < b ? a : b; }

// A level of 0..255 as a channel of 0..1: the same as divided by 255. The first factor has 9 bits, so that
// its products are exact.
inline Reals Channels(Ints levels) {
  constexpr float kFirst = 0x1.01p-8F, kSecond = 1.0 / 255 - kFirst;
  const Reals numbers = __builtin_convertvector(levels, Reals);
  return numbers * kFirst + numbers * kSecond;
}

// The level of a channel, rounded half to even, in the lowest bits: a float that large has no fraction.
inline Ints Rounded(Reals channels) {
  constexpr float kRounder = 12582912;
  return (Ints)(channels * 255 + kRounder) & 255;
}

// HLSToRGB(RGBToHLS(colour) with more luminance), the same to the last bit, without a branch. A colour of two
// equal highest channels has a hue between two sectors; it comes out the same in both.
inline Ints Lightened(Ints pixels, float factor) {
  const Reals zero = {}, one = zero + 1, tiny = zero + 1e-30F;
  const Reals red = Channels(pixels & 255), green = Channels(pixels >> 8 & 255),
              blue = Channels(pixels >> 16);
  const Reals max0 = Larger(Larger(red, green), blue), min0 = Smaller(Smaller(red, green), blue);
  const Reals d0 = max0 - min0, sum = max0 + min0;
  const Reals range = sum > 1 ? 2 - max0 - min0 : sum;
  const Reals saturation = d0 / Larger(range, tiny);
  const Ints isRed = red == max0, isGreen = green == max0;
  const Reals side = isRed ? green - blue : isGreen ? blue - red : red - green;
  const Reals sector = isRed ? zero : isGreen ? zero + 2 : zero + 4;
  const Reals turn = sector + side / Larger(d0, tiny) - sector;

  const Reals luminance = Smaller(factor * (sum / 2), one);
  const Reals dark = (1 - saturation) * luminance, light = luminance - (1 - luminance) * saturation;
  const Reals min = luminance > 0.5F ? light : dark;
  const Reals max = 2 * luminance - min;
  const Reals mid = min + (max - min) * (Reals)((Ints)turn & INT32_MAX);

  const Ints low = Rounded(min), middle = Rounded(mid), isBack = turn < 0;
  const Ints next = isBack ? low : middle, last = isBack ? middle : low;  // the channels behind the highest
  const Ints fromRed = Rounded(max) | next << 8 | last << 16;
  const Ints fromGreen = (fromRed << 8 | fromRed >> 16) & 0xFFFFFF;
  const Ints fromBlue = (fromRed << 16 | fromRed >> 8) & 0xFFFFFF;
  return isRed ? fromRed : isGreen ? fromGreen : fromBlue;
}

}  // namespace

void Lighten(cDIBSection& surface, int percent, const ImageEvents& events) {
  const float factor = std::max(static_cast<float>(percent) / 100 + 1, 0.0F);  // below 0 all is black too
  alignas(Ints) std::array<std::uint32_t, kStripColumns> strip{};
  ForStripRows(events, surface, [&](std::uint8_t* bytes, int count) {
    BgrToPixels(bytes, count / kBytes, strip.data());
    for (std::size_t k = 0; k < strip.size(); k += kLanes) {
      Ints pixels;
      std::memcpy(&pixels, &strip[k], sizeof pixels);
      pixels = Lightened(pixels, factor);
      std::memcpy(&strip[k], &pixels, sizeof pixels);
    }
    PixelsToBgr(strip.data(), count / kBytes, bytes);
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

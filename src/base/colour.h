// Colours are 32-bit numbers red + 256 * green + 65536 * blue, each channel 0..255.
#pragma once

#include <cmath>
#include <cstdint>

namespace pelorium {

using Colour = std::uint32_t;

constexpr Colour Rgb(int red, int green, int blue) {
  return static_cast<Colour>(red) | static_cast<Colour>(green) << 8 | static_cast<Colour>(blue) << 16;
}

constexpr int Red(Colour colour) { return static_cast<int>(colour & 0xFF); }
constexpr int Green(Colour colour) { return static_cast<int>(colour >> 8 & 0xFF); }
constexpr int Blue(Colour colour) { return static_cast<int>(colour >> 16 & 0xFF); }

// The gray level of a colour as pictures tell it: the whole part of the mean of its channels; -1 for -1,
// outside the picture.
constexpr int GrayLevel(int colour) {
  if (colour < 0) return -1;
  const Colour c = static_cast<Colour>(colour);
  return (Red(c) + Green(c) + Blue(c)) / 3;
}

// A material's channel (0 to about 1) as a screen channel: floor(value * 255), held in 0..255. A NaN gives 0.
inline int ScreenChannel(double value) {
  const double scaled = std::floor(value * 255);
  if (!(scaled > 0)) return 0;
  return scaled < 255 ? static_cast<int>(scaled) : 255;
}

}  // namespace pelorium
